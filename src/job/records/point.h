#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct PointFields
{
    QString element; ///< tag
    QString id;
    double x = -1.0; ///< position on the floor plan or the sheet, in pixels
    double y = -1.0;
    QString parent; ///< tag of its floor or sheet

    auto members() const
    {
        const auto &[tag, name, left, top, parentTag] = *this;
        return std::tie(tag, name, left, top, parentTag);
    }
};

} // namespace cabledoc

/// A point on a floor plan, which cables pass. See Record for copying and comparing.
class CABLEDOC_EXPORT Point : public cabledoc::Record<cabledoc::PointFields>
{
    Q_OBJECT

public:
    Point() = default;
    explicit Point(const Fields &fields)
        : Record(fields)
    {
    }
    Point(const QString &element, const QString &id, double x, double y, const QString &parent)
        : Record(Fields{element, id, x, y, parent})
    {
    }

    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    double x() const { return m_fields.x; }
    void setX(double x) { m_fields.x = x; }
    double y() const { return m_fields.y; }
    void setY(double y) { m_fields.y = y; }
    const QString &parent() const { return m_fields.parent; }
    void setParent(const QString &tag) { m_fields.parent = tag; }
};

/// A bend of a connection on a sheet: connections lead from a device to a bend and on from there.
class CABLEDOC_EXPORT Vertice : public Point
{
    Q_OBJECT

public:
    using Point::Point;
    Vertice() = default;
};
