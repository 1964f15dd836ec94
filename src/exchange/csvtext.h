#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

#include <functional>

namespace cabledoc {

/// A row of a CSV text.
struct CsvRow
{
    /// Number of the row among all rows, including empty lines.
    int number = 1;
    QVector<QByteArray> fields;
};

/// Where a text is not valid CSV: the numbers of the row and the field from 1, or 0 if the text is valid.
struct CsvFault
{
    int row = 0;
    int column = 0;
};

/// Reads CSV text up to the first error, and calls takeRow with each row that has fields. Returns where the error is.
CsvFault readCsv(const QByteArray &text, const std::function<void(const CsvRow &row)> &takeRow);

/// Returns one line of CSV with a line break.
QByteArray csvLine(const QVector<QByteArray> &fields);

} // namespace cabledoc
