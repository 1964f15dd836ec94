#pragma once

#include "cabledoc_export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <functional>

namespace cabledoc {

/// A text with fields, such as "{id}\n{from_room|?}".
///
/// The name of a field stands in braces. A text after "|" takes the place of a value that is empty. "\n" begins a new
/// line, as a line break does, and "\\" stands for a backslash. "{{" and "}}" stand for braces.
class CABLEDOC_EXPORT LabelPattern
{
public:
    /// Reads a pattern.
    explicit LabelPattern(const QString &text);

    /// Returns what is wrong with the pattern, or an empty string.
    const QString &error() const { return m_error; }
    /// Returns the names of its fields, without those that occur again.
    QStringList fields() const;
    /// Returns the lines of the pattern. The function returns the value of the field with a name. Lines that are empty
    /// are left out.
    QStringList lines(const std::function<QString(const QString &field)> &valueOf) const;

private:
    struct Part
    {
        QString field; ///< empty for a text between fields
        QString text;  ///< of the part itself, or instead of an empty value
    };

    void read(const QString &text);
    int readField(const QString &text, int begin);
    void addText(const QString &text);

    QVector<QVector<Part>> m_lines;
    QString m_error;
};

} // namespace cabledoc
