#pragma once

#include "drawingfonts.h"
#include "plancontent.h"
#include "plandrawing.h"

namespace cabledoc {

/// The parts of a sheet. A small sheet has no column.
struct SheetParts
{
    explicit SheetParts(const QSizeF &size);

    QRectF frame;
    QRectF window; ///< for the plan
    QRectF column; ///< for the legend and lists beside the plan
    QRectF list;   ///< for lists that need sheets of their own
    QRectF bar;    ///< for the scale bar
    QRectF title;  ///< for the title block
    bool isSmall;
};

/// Returns the size of the largest plan that fits on a sheet of the given size.
QSizeF roomForPlan(const QSizeF &paper);

/// How sheets are laid out.
struct SheetStyle
{
    const TextMeasure &measure;
    QSizeF paper;
    PlanOptions::Overflow overflow;
    DrawingScale scale;
    std::optional<double> north;
};

/// Sheets with a plan, or why there are none.
struct PlanSheets
{
    QVector<Scene> pages;
    QString error;
    bool hasOverview; ///< whether the first page is not to scale
};

/// Lays a plan out on sheets, without their title blocks. The first sheet is the page with the given number.
PlanSheets sheetsWith(const PlanContent &plan, const SheetStyle &style, int firstPage);

} // namespace cabledoc
