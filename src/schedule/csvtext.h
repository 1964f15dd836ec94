#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

namespace cabledoc {

struct CsvRow
{
    int number = 1; ///< among all rows, empty lines included
    QVector<QByteArray> fields;
};

struct CsvText
{
    QVector<CsvRow> rows; ///< those that have fields
    /// Where the text is no CSV, as number of the row and of the field from 1; 0 when all of it is.
    int badRow = 0;
    int badColumn = 0;
};

/// Takes CSV text apart, up to where it is malformed.
CsvText readCsv(const QByteArray &text);

/// One line of CSV, with its end.
QByteArray csvLine(const QVector<QByteArray> &fields);

} // namespace cabledoc
