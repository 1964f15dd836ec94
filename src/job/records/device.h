#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a Device.
struct DeviceFields
{
    /// Tag of the device.
    QString element;
    /// Name that the user sees.
    QString id;
    /// Type of the device, usually a word of cabledoc::Vocabulary::deviceTypes().
    QString type;
    /// Horizontal position on the sheet, in pixels.
    double x = -1.0;
    /// Vertical position on the sheet, in pixels.
    double y = -1.0;
    /// Size of the device's icon on the sheet, where 1.0 is the usual size.
    double iconScale = 1.0;
    /// Notes of the user about the device.
    QString info;
    /// Tag of the sheet.
    QString sheet;
};

/// Returns all fields. Records are compared by them.
inline auto members(const DeviceFields &fields)
{
    const auto &[element, id, type, x, y, iconScale, info, sheet] = fields;
    return std::tie(element, id, type, x, y, iconScale, info, sheet);
}

} // namespace cabledoc

/// A network device on a sheet. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT Device : public cabledoc::Record<cabledoc::DeviceFields>
{
    Q_OBJECT

public:
    /// Creates a device without names, a type, notes or a sheet. Its position is (-1.0, -1.0), its icon scale is 1.0.
    Device() = default;
    /// Creates a device with the given fields.
    explicit Device(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a device from its parts.
    Device(const QString &element, const QString &id, const QString &type, double x, double y, double iconScale,
           const QString &info, const QString &sheet)
        : Record(Fields{element, id, type, x, y, iconScale, info, sheet})
    {
    }

    /// Returns the tag of the device.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the device.
    void setElement(const QString &tag) { m_fields.element = tag; }
    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the type of the device.
    const QString &type() const { return m_fields.type; }
    /// Sets the type of the device, usually a word of cabledoc::Vocabulary::deviceTypes().
    void setType(const QString &type) { m_fields.type = type; }
    /// Returns the horizontal position on the sheet, in pixels.
    double x() const { return m_fields.x; }
    /// Sets the horizontal position on the sheet, in pixels.
    void setX(double x) { m_fields.x = x; }
    /// Returns the vertical position on the sheet, in pixels.
    double y() const { return m_fields.y; }
    /// Sets the vertical position on the sheet, in pixels.
    void setY(double y) { m_fields.y = y; }
    /// Returns the size of the device's icon, where 1.0 is the usual size.
    double iconScale() const { return m_fields.iconScale; }
    /// Sets the size of the device's icon, where 1.0 is the usual size.
    void setIconScale(double scale) { m_fields.iconScale = scale; }
    /// Returns the notes of the user about the device.
    const QString &info() const { return m_fields.info; }
    /// Sets the notes of the user about the device.
    void setInfo(const QString &info) { m_fields.info = info; }
    /// Returns the tag of the sheet.
    const QString &sheet() const { return m_fields.sheet; }
    /// Sets the tag of the sheet.
    void setSheet(const QString &sheetTag) { m_fields.sheet = sheetTag; }
};
