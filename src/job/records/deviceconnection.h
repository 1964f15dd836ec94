#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct DeviceConnectionFields
{
    QString element; ///< tag
    QString id;      ///< name that the user sees
    QString to;      ///< tag of a device or a bend
    QString from;    ///< likewise
    QString type;    ///< a number; the application assigns the meaning

    auto members() const
    {
        const auto &[ownTag, name, end, start, kind] = *this;
        return std::tie(ownTag, name, end, start, kind);
    }
};

} // namespace cabledoc

/// A connection between two network devices. See Record for copying and comparing.
class CABLEDOC_EXPORT DeviceConnection : public cabledoc::Record<cabledoc::DeviceConnectionFields>
{
    Q_OBJECT

public:
    DeviceConnection() = default;
    explicit DeviceConnection(const Fields &fields)
        : Record(fields)
    {
    }
    DeviceConnection(const QString &tag, const QString &id, const QString &to, const QString &from, const QString &type)
        : Record(Fields{tag, id, to, from, type})
    {
    }

    const QString &tag() const { return m_fields.element; }
    void setTag(const QString &tag) { m_fields.element = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &to() const { return m_fields.to; }
    void setTo(const QString &tag) { m_fields.to = tag; }
    const QString &from() const { return m_fields.from; }
    void setFrom(const QString &tag) { m_fields.from = tag; }
    const QString &type() const { return m_fields.type; }
    void setType(QString type) { m_fields.type = std::move(type); }
};
