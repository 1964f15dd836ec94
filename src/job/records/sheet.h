#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct SheetFields
{
    QString id;      ///< name that the user sees, unique among sheets
    QString element; ///< tag

    auto members() const
    {
        const auto &[name, tag] = *this;
        return std::tie(name, tag);
    }
};

} // namespace cabledoc

/// A drawing page that holds network devices, points and texts. See Record for copying and comparing.
class CABLEDOC_EXPORT Sheet : public cabledoc::Record<cabledoc::SheetFields>
{
    Q_OBJECT

public:
    /// No name, no tag.
    Sheet() = default;
    explicit Sheet(const Fields &fields)
        : Record(fields)
    {
    }
    Sheet(const QString &element, const QString &id)
        : Record(Fields{id, element})
    {
    }

    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
};
