#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct FloorFields
{
    QString id;                 ///< name that the user sees, unique among floors
    QString element;            ///< tag
    QString pic;                ///< path of the background picture; empty when there is none
    double ceilingHeight = 8.0; ///< in the job's length unit

    auto members() const
    {
        const auto &[name, tag, picture, height] = *this;
        return std::tie(name, tag, picture, height);
    }
};

} // namespace cabledoc

/// A level of the building. See Record for copying and comparing.
class CABLEDOC_EXPORT Floor : public cabledoc::Record<cabledoc::FloorFields>
{
    Q_OBJECT

public:
    /// No name, no tag, no picture, ceiling height 8.0.
    Floor() = default;
    explicit Floor(const Fields &fields)
        : Record(fields)
    {
    }
    Floor(const QString &element, const QString &id, const QString &pic, double ceilingHeight)
        : Record(Fields{id, element, pic, ceilingHeight})
    {
    }

    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
    const QString &pic() const { return m_fields.pic; }
    void setPic(const QString &path) { m_fields.pic = path; }
    double ceilingHeight() const { return m_fields.ceilingHeight; }
    void setCeilingHeight(double height) { m_fields.ceilingHeight = height; }
};
