#pragma once

#include "cablecolors.h"
#include "drawingfonts.h"
#include "plandrawing.h"

namespace cabledoc {

/// An entry of the column beside a plan: a heading, an entry of the legend, or one of a list.
struct ColumnEntry
{
    bool isHeading = false;
    QVector<SceneShape> sample; ///< what the entry explains, around the origin
    QString mark;               ///< a number or a mark, or empty
    QString text;
};

/// The plan of a floor, without a sheet. Its origin is that of the floor plan.
struct FloorPlan
{
    QString name;
    QVector<SceneItem> items;
    QRectF bounds; ///< what the items take up; not valid if there are none
    QVector<ColumnEntry> legend;
    QVector<ColumnEntry> lists; ///< of labels that are numbers on the plan, and of elements without a place
    QStringList warnings;
};

/// What all floor plans of a drawing share.
struct PlanContext
{
    const JobSnapshot &job;
    const PlanOptions &options;
    const CablePalette &palette;
    const TextMeasure &measure;
    DrawingScale scale;
    double millimetersInAPixel;
};

/// Draws the plan of the floor at the given position.
FloorPlan planOf(const PlanContext &context, int floor);

} // namespace cabledoc
