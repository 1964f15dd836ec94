#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

#include <functional>

namespace cabledoc {

struct CsvRow
{
    int number = 1; ///< among all rows, empty lines included
    QVector<QByteArray> fields;
};

/// Where a text is not CSV, as number of the row and of the field from 1; 0 if all of it is.
struct CsvFault
{
    int row = 0;
    int column = 0;
};

/// Takes CSV text apart, up to where it is malformed, and hands on each row that has fields.
CsvFault readCsv(const QByteArray &text, const std::function<void(const CsvRow &row)> &takeRow);

/// One line of CSV, with its end.
QByteArray csvLine(const QVector<QByteArray> &fields);

} // namespace cabledoc
