#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a Floor.
struct FloorFields
{
    /// Name that the user sees, unique among floors.
    QString id;
    /// Tag of the floor.
    QString element;
    /// Path of the background picture, or empty if there is none.
    QString pic;
    /// Ceiling height in the job's length unit.
    double ceilingHeight = 8.0;
};

/// Returns all fields. Records are compared by them.
inline auto members(const FloorFields &fields)
{
    const auto &[id, element, pic, ceilingHeight] = fields;
    return std::tie(id, element, pic, ceilingHeight);
}

} // namespace cabledoc

/// A floor of the building. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT Floor : public cabledoc::Record<cabledoc::FloorFields>
{
    Q_OBJECT

public:
    /// Creates a floor without names or a picture and with ceiling height 8.0.
    Floor() = default;
    /// Creates a floor with the given fields.
    explicit Floor(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a floor from its parts. Note that the tag comes before the name.
    Floor(const QString &element, const QString &id, const QString &pic, double ceilingHeight)
        : Record(Fields{id, element, pic, ceilingHeight})
    {
    }

    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the tag of the floor.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the floor.
    void setElement(const QString &tag) { m_fields.element = tag; }
    /// Returns the path of the background picture, or an empty string if there is none.
    const QString &pic() const { return m_fields.pic; }
    /// Sets the path of the background picture.
    void setPic(const QString &path) { m_fields.pic = path; }
    /// Returns the ceiling height in the job's length unit.
    double ceilingHeight() const { return m_fields.ceilingHeight; }
    /// Sets the ceiling height in the job's length unit.
    void setCeilingHeight(double height) { m_fields.ceilingHeight = height; }
};
