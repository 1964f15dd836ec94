#pragma once

#include "scene.h"

#include <QtCore/QStringList>

namespace cabledoc {

/// An entry of the column beside a plan: a heading, an entry of the legend, or one of a list.
struct ColumnEntry
{
    static ColumnEntry heading(const QString &text) { return {true, {}, {}, text}; }
    static ColumnEntry explaining(const QVector<SceneShape> &sample, const QString &text)
    {
        return {false, sample, {}, text};
    }
    static ColumnEntry listed(const QString &mark, const QString &text) { return {false, {}, mark, text}; }

    bool isHeading = false;
    QVector<SceneShape> sample; ///< what the entry explains, around the origin
    QString mark;               ///< a number or a mark, or empty
    QString text;
};

/// What is drawn of a floor or a sheet with devices, without the paper. The origin is that of the plan.
struct PlanContent
{
    QString name;
    QVector<SceneItem> items;
    QRectF bounds; ///< what the items take up; not valid if there are none
    QVector<ColumnEntry> legend;
    QVector<ColumnEntry> lists; ///< of labels that are numbers on the plan, and of elements without a place
    QStringList warnings;
};

/// Returns a square with the given centre.
inline QRectF squareAround(const QPointF &center, double size)
{
    QRectF area(0.0, 0.0, size, size);
    area.moveCenter(center);
    return area;
}

/// Adds a list of the elements that have no place on the plan, if there are any.
inline void addListWithoutPlace(PlanContent *plan, const QString &title, const QStringList &names)
{
    if (!names.isEmpty())
        plan->lists.append(ColumnEntry::heading(title));
    for (const QString &name : names)
        plan->lists.append(ColumnEntry::listed({}, name));
}

} // namespace cabledoc
