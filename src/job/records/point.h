#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a Point and of a Vertice.
struct PointFields
{
    /// Tag of the point.
    QString element;
    /// Id of the point.
    QString id;
    /// Horizontal position on the floor plan or sheet, in pixels.
    double x = -1.0;
    /// Vertical position on the floor plan or sheet, in pixels.
    double y = -1.0;
    /// Tag of the floor or sheet.
    QString parent;
};

/// Returns all fields. Records are compared by them.
inline auto members(const PointFields &fields)
{
    const auto &[element, id, x, y, parent] = fields;
    return std::tie(element, id, x, y, parent);
}

} // namespace cabledoc

/// A point on a floor plan that cables pass. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT Point : public cabledoc::Record<cabledoc::PointFields>
{
    Q_OBJECT

public:
    /// Creates a point without names or a floor, at the position (-1.0, -1.0).
    Point() = default;
    /// Creates a point with the given fields.
    explicit Point(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a point from its parts.
    Point(const QString &element, const QString &id, double x, double y, const QString &parent)
        : Record(Fields{element, id, x, y, parent})
    {
    }

    /// Returns the tag of the point.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the point.
    void setElement(const QString &tag) { m_fields.element = tag; }
    /// Returns the id of the point.
    const QString &id() const { return m_fields.id; }
    /// Sets the id of the point.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the horizontal position on the floor plan or sheet, in pixels.
    double x() const { return m_fields.x; }
    /// Sets the horizontal position on the floor plan or sheet, in pixels.
    void setX(double x) { m_fields.x = x; }
    /// Returns the vertical position on the floor plan or sheet, in pixels.
    double y() const { return m_fields.y; }
    /// Sets the vertical position on the floor plan or sheet, in pixels.
    void setY(double y) { m_fields.y = y; }
    /// Returns the tag of the floor or sheet. Hides QObject::parent().
    const QString &parent() const { return m_fields.parent; }
    /// Sets the tag of the floor or sheet. Hides QObject::setParent().
    void setParent(const QString &tag) { m_fields.parent = tag; }
};

/// A bend of a connection on a sheet. One connection leads from a device to the bend, and the next one leads on from
/// there.
class CABLEDOC_EXPORT Vertice : public Point
{
    Q_OBJECT

public:
    /// Creates a bend in the ways in which a Point is created.
    using Point::Point;
    /// Creates a bend without names or a sheet, at the position (-1.0, -1.0).
    Vertice() = default;
};
