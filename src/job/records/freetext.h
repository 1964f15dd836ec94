#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a FreeText.
struct FreeTextFields
{
    /// Tag of the text.
    QString element;
    /// Id of the text.
    QString id;
    /// The text itself.
    QString text;
    /// Horizontal position on the floor plan or sheet, in pixels.
    double x = -1.0;
    /// Vertical position on the floor plan or sheet, in pixels.
    double y = -1.0;
    /// Font family, or empty for the application's own font.
    QString fontFamily;
    /// Font size in points.
    double fontSize = 12.0;
    /// Whether the font is bold.
    bool bold = false;
    /// Whether the font is italic.
    bool italic = false;
    /// Name of the colour of the text.
    QString color = QStringLiteral("#000000");
    /// Tag of the floor or sheet.
    QString parent;
};

/// Returns all fields. Records are compared by them.
inline auto members(const FreeTextFields &fields)
{
    const auto &[element, id, text, x, y, fontFamily, fontSize, bold, italic, color, parent] = fields;
    return std::tie(element, id, text, x, y, fontFamily, fontSize, bold, italic, color, parent);
}

} // namespace cabledoc

/// A text on a floor plan or a sheet that does not belong to another element. See cabledoc::Record for how records are
/// copied and compared.
class CABLEDOC_EXPORT FreeText : public cabledoc::Record<cabledoc::FreeTextFields>
{
    Q_OBJECT

public:
    /// Creates an empty text at the position (-1.0, -1.0), in 12 points and the colour "#000000", neither bold nor
    /// italic.
    FreeText() = default;
    /// Creates a text with the given fields.
    explicit FreeText(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a text from its parts.
    FreeText(const QString &element, const QString &id, const QString &text, double x, double y,
             const QString &fontFamily, double fontSize, bool bold, bool italic, const QString &color,
             const QString &parent)
        : Record(Fields{element, id, text, x, y, fontFamily, fontSize, bold, italic, color, parent})
    {
    }

    /// Returns the tag of the text.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the text.
    void setElement(const QString &tag) { m_fields.element = tag; }
    /// Returns the id of the text.
    const QString &id() const { return m_fields.id; }
    /// Sets the id of the text.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the text itself.
    const QString &text() const { return m_fields.text; }
    /// Sets the text itself.
    void setText(const QString &text) { m_fields.text = text; }
    /// Returns the horizontal position on the floor plan or sheet, in pixels.
    double x() const { return m_fields.x; }
    /// Sets the horizontal position on the floor plan or sheet, in pixels.
    void setX(double x) { m_fields.x = x; }
    /// Returns the vertical position on the floor plan or sheet, in pixels.
    double y() const { return m_fields.y; }
    /// Sets the vertical position on the floor plan or sheet, in pixels.
    void setY(double y) { m_fields.y = y; }
    /// Returns the font family, or an empty string for the application's own font.
    const QString &fontFamily() const { return m_fields.fontFamily; }
    /// Sets the font family. An empty family stands for the application's own font.
    void setFontFamily(const QString &family) { m_fields.fontFamily = family; }
    /// Returns the font size in points.
    double fontSize() const { return m_fields.fontSize; }
    /// Sets the font size in points.
    void setFontSize(double points) { m_fields.fontSize = points; }
    /// Returns whether the font is bold.
    bool bold() const { return m_fields.bold; }
    /// Sets whether the font is bold.
    void setBold(bool bold) { m_fields.bold = bold; }
    /// Returns whether the font is italic.
    bool italic() const { return m_fields.italic; }
    /// Sets whether the font is italic.
    void setItalic(bool italic) { m_fields.italic = italic; }
    /// Returns the name of the colour of the text.
    const QString &color() const { return m_fields.color; }
    /// Sets the colour of the text, given by a name such as "#000000".
    void setColor(const QString &color) { m_fields.color = color; }
    /// Returns the tag of the floor or sheet. Hides QObject::parent().
    const QString &parent() const { return m_fields.parent; }
    /// Sets the tag of the floor or sheet. Hides QObject::setParent().
    void setParent(const QString &tag) { m_fields.parent = tag; }
};
