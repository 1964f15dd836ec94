#pragma once

#include "cabledoc_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace cabledoc {

/// The encoding of a CSV text.
enum class CsvEncoding {
    Detected,    ///< UTF-16 if the text begins with its byte order mark or has a zero among its first two bytes,
                 ///< otherwise UTF-8
    Utf8,        ///< UTF-8, with or without a byte order mark
    Utf16,       ///< UTF-16. Without a byte order mark it is little endian, except if its first byte is zero.
    Windows1252, ///< Windows-1252, the encoding of Windows in Western Europe and America
};

/// How a CSV text is read.
struct CsvOptions
{
    /// Character that separates the fields: a comma, a semicolon or a tab. With any other value it is detected: it is
    /// the one of them that the heading has most often outside of quotation marks, and a comma if the heading has none.
    char delimiter = '\0';
    /// Encoding of the text.
    CsvEncoding encoding = CsvEncoding::Detected;
    /// Whether to undo CsvStyle::protectFormulas: fields lose the apostrophe that it adds.
    bool removeProtection = false;
};

/// How a CSV text is written. It is always UTF-8, with "\n" at the ends of lines.
struct CsvStyle
{
    /// Character that separates the fields: a comma, a semicolon or a tab. Any other value means a comma.
    char delimiter = ',';
    /// Whether the text begins with a byte order mark, by which some spreadsheets recognise UTF-8.
    bool byteOrderMark = false;
    /// Whether to keep spreadsheets from running fields as formulas: a field that begins with "=", "+", "-", "@", a tab
    /// or a carriage return gets an apostrophe before it, except if it is a number. A field that already has
    /// apostrophes before one of these characters gets one more, so that CsvOptions::removeProtection gives back the
    /// same fields.
    bool protectFormulas = false;
};

/// A remark on a place in a CSV text.
struct CsvProblem
{
    /// Number of the row, where 1 is the heading. A row with line breaks in its fields counts once. Empty lines count
    /// too. It is 0 if the remark is not about a place.
    int row = 0;
    /// Number of the column in the file, from 1, or 0.
    int column = 0;
    /// Translated description.
    QString message;
};

/// Returns what a CSV text has before its first line: a byte order mark or nothing.
CABLEDOC_EXPORT QByteArray csvBeginning(const CsvStyle &style);
/// Returns one line of CSV with a line break. There must be at least one field.
CABLEDOC_EXPORT QByteArray csvLine(const QStringList &fields, const CsvStyle &style = {});

} // namespace cabledoc
