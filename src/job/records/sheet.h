#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a Sheet. Both are empty by default.
struct SheetFields
{
    /// Name that the user sees, unique among sheets.
    QString id;
    /// Tag of the sheet.
    QString element;
};

/// Returns all fields. Records are compared by them.
inline auto members(const SheetFields &fields)
{
    const auto &[id, element] = fields;
    return std::tie(id, element);
}

} // namespace cabledoc

/// A drawing page that holds network devices, bends of connections and texts. See cabledoc::Record for how records are
/// copied and compared.
class CABLEDOC_EXPORT Sheet : public cabledoc::Record<cabledoc::SheetFields>
{
    Q_OBJECT

public:
    /// Creates a sheet without names.
    Sheet() = default;
    /// Creates a sheet with the given fields.
    explicit Sheet(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a sheet from its tag and its name.
    Sheet(const QString &element, const QString &id)
        : Record(Fields{id, element})
    {
    }

    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the tag of the sheet.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the sheet.
    void setElement(const QString &tag) { m_fields.element = tag; }
};
