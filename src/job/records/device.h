#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct DeviceFields
{
    QString element; ///< tag
    QString id;      ///< name that the user sees
    QString type;    ///< what it is
    double x = -1.0; ///< position on the sheet, in pixels
    double y = -1.0;
    double iconScale = 1.0; ///< size of its icon on the sheet; 1.0 is the usual size
    QString info;           ///< what the user notes about it
    QString sheet;          ///< tag of its sheet

    auto members() const
    {
        const auto &[tag, name, kind, left, top, scale, note, sheetTag] = *this;
        return std::tie(tag, name, kind, left, top, scale, note, sheetTag);
    }
};

} // namespace cabledoc

/// A network device on a sheet. See Record for copying and comparing.
class CABLEDOC_EXPORT Device : public cabledoc::Record<cabledoc::DeviceFields>
{
    Q_OBJECT

public:
    Device() = default;
    explicit Device(const Fields &fields)
        : Record(fields)
    {
    }
    Device(const QString &element, const QString &id, const QString &type, double x, double y, double iconScale,
           const QString &info, const QString &sheet)
        : Record(Fields{element, id, type, x, y, iconScale, info, sheet})
    {
    }

    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &type() const { return m_fields.type; }
    void setType(const QString &type) { m_fields.type = type; }
    double x() const { return m_fields.x; }
    void setX(double x) { m_fields.x = x; }
    double y() const { return m_fields.y; }
    void setY(double y) { m_fields.y = y; }
    double iconScale() const { return m_fields.iconScale; }
    void setIconScale(double scale) { m_fields.iconScale = scale; }
    const QString &info() const { return m_fields.info; }
    void setInfo(const QString &info) { m_fields.info = info; }
    const QString &sheet() const { return m_fields.sheet; }
    void setSheet(const QString &sheetTag) { m_fields.sheet = sheetTag; }
};
