#pragma once

#include "cabledoc_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace cabledoc {

/// How the table of another program gives test results: its headings, units, numbers, dates and words.
///
/// A mapping is written as an INI file in UTF-8. All sections and keys may be missing:
///
///     ; The headings of columns
///     [columns]
///     cable_id = Label
///     m:NEXT = NEXT margin (dB)
///     [format]
///     length_unit = m
///     decimal_mark = ,
///     date_format = dd.MM.yyyy HH:mm:ss
///     ; What the table says for PASS, PASS*, FAIL and UNTESTED
///     [verdicts]
///     Bestanden = PASS
///
/// A line that begins with ";" or "#" is a comment. The length unit is "m" or "ft". It counts for tables without the
/// column "length_unit". The decimal mark is "," or ".". The date format is one of QDateTime::fromString(). Without it,
/// times are those of ISO 8601. Names of months and days are English. A year with two digits is one after 1969.
struct ResultsMapping
{
    /// The headings of the table by the names of the columns. A column that is missing here has its own name as its
    /// heading.
    QMap<QString, QString> headings;
    /// What the table says for "PASS", "PASS*", "FAIL" and "UNTESTED": these words by those of the table.
    QMap<QString, QString> verdicts;
    /// Unit of the lengths of a table without the column "length_unit": "m" or "ft". Empty if it is not known.
    QString lengthUnit;
    /// Format of times, or empty if they are those of ISO 8601.
    QString dateFormat;
    /// The decimal mark. If it is zero, a number may have a comma if a comma does not separate the fields.
    char decimalMark = '\0';

    /// Returns whether the table is that of another program. Headings that are not known are then skipped.
    bool isOfOtherProgram() const { return !headings.isEmpty(); }
};

/// The result of readResultsMapping().
struct ResultsMappingReport
{
    /// Why the text cannot be read as a mapping, or empty if it can.
    QString error;
    /// The mapping. It has no values if the text cannot be read.
    ResultsMapping mapping;
};

/// Reads a mapping from the content of a file. Fails if it is not UTF-8, for a section, a key or a value that is
/// not known, and for two columns with the same heading.
CABLEDOC_EXPORT ResultsMappingReport readResultsMapping(const QByteArray &data);

} // namespace cabledoc
