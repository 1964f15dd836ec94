#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a DeviceConnection. All of them are empty by default.
struct DeviceConnectionFields
{
    /// Tag of the connection.
    QString element;
    /// Name that the user sees.
    QString id;
    /// Tag of the device or bend at which the connection ends.
    QString to;
    /// Tag of the device or bend at which the connection begins.
    QString from;
    /// Type of the connection: a number whose meaning the application assigns.
    QString type;
};

/// Returns all fields. Records are compared by them.
inline auto members(const DeviceConnectionFields &fields)
{
    const auto &[element, id, to, from, type] = fields;
    return std::tie(element, id, to, from, type);
}

} // namespace cabledoc

/// A connection between two network devices, or between a device and a bend or two bends on the way. See
/// cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT DeviceConnection : public cabledoc::Record<cabledoc::DeviceConnectionFields>
{
    Q_OBJECT

public:
    /// Creates a connection without names, ends or a type.
    DeviceConnection() = default;
    /// Creates a connection with the given fields.
    explicit DeviceConnection(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a connection from its parts.
    DeviceConnection(const QString &tag, const QString &id, const QString &to, const QString &from, const QString &type)
        : Record(Fields{tag, id, to, from, type})
    {
    }

    /// Returns the tag of the connection.
    const QString &tag() const { return m_fields.element; }
    /// Sets the tag of the connection.
    void setTag(const QString &tag) { m_fields.element = tag; }
    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the tag of the device or bend at which the connection ends.
    const QString &to() const { return m_fields.to; }
    /// Sets the tag of the device or bend at which the connection ends.
    void setTo(const QString &tag) { m_fields.to = tag; }
    /// Returns the tag of the device or bend at which the connection begins.
    const QString &from() const { return m_fields.from; }
    /// Sets the tag of the device or bend at which the connection begins.
    void setFrom(const QString &tag) { m_fields.from = tag; }
    /// Returns the type of the connection: a number whose meaning the application assigns.
    const QString &type() const { return m_fields.type; }
    /// Sets the type of the connection: a number whose meaning the application assigns.
    void setType(QString type) { m_fields.type = std::move(type); }
};
