#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QStringList>

namespace cabledoc {

/// The fields of a BundledCable.
struct BundledCableFields
{
    /// Tag of the bundle in its document.
    QString tag;
    /// Name of the bundle.
    QString id;
    /// Cable types in the bundle, each named like its test definition. A document stores the first eight.
    QStringList types;
    /// Name of the bundle's colour, such as "#ffaa7f".
    QString color;
    /// Whether this is one of the built-in bundles.
    bool defaultType = false;
};

/// Returns all fields. Records are compared by them.
inline auto members(const BundledCableFields &fields)
{
    const auto &[tag, id, types, color, defaultType] = fields;
    return std::tie(tag, id, types, color, defaultType);
}

} // namespace cabledoc

/// A bundle: cable types that are pulled together as one run. See cabledoc::Record for how records are copied and
/// compared.
class CABLEDOC_EXPORT BundledCable : public cabledoc::Record<cabledoc::BundledCableFields>
{
    Q_OBJECT

public:
    /// Creates a bundle without a tag, a name, types or a colour. It is not a built-in one.
    BundledCable() = default;
    /// Creates a bundle with the given fields.
    explicit BundledCable(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a bundle from its parts.
    BundledCable(const QString &tag, const QString &id, const QStringList &types, const QString &color,
                 bool defaultType)
        : Record(Fields{tag, id, types, color, defaultType})
    {
    }

    /// Returns the tag, or an empty string if the record was not read from a document.
    const QString &tag() const { return m_fields.tag; }
    /// Sets the tag.
    void setTag(const QString &tag) { m_fields.tag = tag; }
    /// Returns the name of the bundle.
    const QString &id() const { return m_fields.id; }
    /// Sets the name of the bundle.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the names of the cable types in the bundle.
    const QStringList &types() const { return m_fields.types; }
    /// Sets the names of the cable types in the bundle. A document stores the first eight.
    void setTypes(const QStringList &types) { m_fields.types = types; }
    /// Returns the name of the bundle's colour.
    const QString &color() const { return m_fields.color; }
    /// Sets the colour, given by a name such as "#ffaa7f".
    void setColor(const QString &color) { m_fields.color = color; }
    /// Returns whether this is one of the built-in bundles.
    bool defaultType() const { return m_fields.defaultType; }
    /// Sets whether this is one of the built-in bundles.
    void setDefaultType(bool isDefault) { m_fields.defaultType = isDefault; }
};
