#pragma once

#include "csvoptions.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <functional>

namespace cabledoc {

/// A row of a CSV text.
struct CsvRow
{
    /// Number of the row among all rows, including empty lines.
    int number = 1;
    QStringList fields;

    /// Returns whether all fields are empty.
    bool isEmpty() const;
};

/// A CSV text in any of the forms in which spreadsheets write it.
class CsvText
{
    Q_DECLARE_TR_FUNCTIONS(CsvText)

public:
    /// Takes the content of a file. Detects its encoding and the character that separates its fields, unless the
    /// options give them.
    CsvText(const QByteArray &data, const CsvOptions &options);

    /// Returns why the data cannot be read as CSV, or an empty string if it can.
    const QString &error() const { return m_error; }
    /// Returns the character that separates the fields.
    char delimiter() const { return m_delimiter; }
    /// Calls takeRow with each row that has fields, up to the first mistake in the quotation marks or in the encoding.
    /// Returns this mistake, or a problem in row 0 if there is none.
    CsvProblem read(const std::function<void(const CsvRow &row)> &takeRow) const;
    /// Calls readHeading with the first row, which is empty if the text has none. If it returns true, calls readRow
    /// with each other row that is not empty. Returns what read() returns.
    CsvProblem readTable(const std::function<bool(const CsvRow &heading)> &readHeading,
                         const std::function<void(const CsvRow &row)> &readRow) const;

private:
    QString wrongEncoding() const;

    QString m_error;
    CsvEncoding m_encoding;
    bool m_removesProtection;
    QByteArray m_utf8;
    char m_delimiter = ',';
};

/// Sorts problems by their rows and columns.
void sortByPlace(QVector<CsvProblem> &problems);

/// Returns the number with a decimal point instead of a decimal comma. Returns the text as it is if the delimiter of
/// its file is a comma, or if it does not have a single comma and no point.
QString withDecimalPoint(const QString &number, char delimiter);

} // namespace cabledoc
