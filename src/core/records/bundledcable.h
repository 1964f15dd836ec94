#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QStringList>

namespace cabledoc {

struct BundledCableFields
{
    QString tag;
    QString id;               ///< name of the bundle
    QStringList types;        ///< cable types, at most eight
    QString color;            ///< a colour name such as "#ffaa7f"
    bool defaultType = false; ///< one of the system's built-in bundles

    auto members() const
    {
        const auto &[element, name, cables, colorName, isDefault] = *this;
        return std::tie(element, name, cables, colorName, isDefault);
    }
};

} // namespace cabledoc

/// Cable types that are pulled together as one run. See Record for copying and comparing.
class CABLEDOC_EXPORT BundledCable : public cabledoc::Record<cabledoc::BundledCableFields>
{
    Q_OBJECT

public:
    BundledCable() = default;
    explicit BundledCable(const Fields &fields)
        : Record(fields)
    {
    }
    BundledCable(const QString &tag, const QString &id, const QStringList &types, const QString &color,
                 bool defaultType)
        : Record(Fields{tag, id, types, color, defaultType})
    {
    }

    const QString &tag() const { return m_fields.tag; }
    void setTag(const QString &tag) { m_fields.tag = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QStringList &types() const { return m_fields.types; }
    void setTypes(const QStringList &types) { m_fields.types = types; }
    const QString &color() const { return m_fields.color; }
    void setColor(const QString &color) { m_fields.color = color; }
    bool defaultType() const { return m_fields.defaultType; }
    void setDefaultType(bool isDefault) { m_fields.defaultType = isDefault; }
};
