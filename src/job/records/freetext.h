#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct FreeTextFields
{
    QString element; ///< tag
    QString id;
    QString text;
    double x = -1.0; ///< position on the floor plan or the sheet, in pixels
    double y = -1.0;
    QString fontFamily;     ///< empty for the application's own
    double fontSize = 12.0; ///< points
    bool bold = false;
    bool italic = false;
    QString color = QStringLiteral("#000000"); ///< a colour name
    QString parent;                            ///< tag of its floor or sheet

    auto members() const
    {
        const auto &[tag, name, words, left, top, family, size, isBold, isItalic, colorName, parentTag] = *this;
        return std::tie(tag, name, words, left, top, family, size, isBold, isItalic, colorName, parentTag);
    }
};

} // namespace cabledoc

/// A text that stands by itself on a floor plan or a sheet. See Record for copying and comparing.
class CABLEDOC_EXPORT FreeText : public cabledoc::Record<cabledoc::FreeTextFields>
{
    Q_OBJECT

public:
    FreeText() = default;
    explicit FreeText(const Fields &fields)
        : Record(fields)
    {
    }
    FreeText(const QString &element, const QString &id, const QString &text, double x, double y,
             const QString &fontFamily, double fontSize, bool bold, bool italic, const QString &color,
             const QString &parent)
        : Record(Fields{element, id, text, x, y, fontFamily, fontSize, bold, italic, color, parent})
    {
    }

    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &text() const { return m_fields.text; }
    void setText(const QString &text) { m_fields.text = text; }
    double x() const { return m_fields.x; }
    void setX(double x) { m_fields.x = x; }
    double y() const { return m_fields.y; }
    void setY(double y) { m_fields.y = y; }
    const QString &fontFamily() const { return m_fields.fontFamily; }
    void setFontFamily(const QString &family) { m_fields.fontFamily = family; }
    double fontSize() const { return m_fields.fontSize; }
    void setFontSize(double points) { m_fields.fontSize = points; }
    bool bold() const { return m_fields.bold; }
    void setBold(bool bold) { m_fields.bold = bold; }
    bool italic() const { return m_fields.italic; }
    void setItalic(bool italic) { m_fields.italic = italic; }
    const QString &color() const { return m_fields.color; }
    void setColor(const QString &color) { m_fields.color = color; }
    const QString &parent() const { return m_fields.parent; }
    void setParent(const QString &tag) { m_fields.parent = tag; }
};
