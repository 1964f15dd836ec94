#include "table.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <algorithm>

namespace {

/// Returns whether all cells of the column below the heading are numbers or empty. At least one must be a number.
bool isNumeric(const QVector<QStringList> &rows, int column)
{
    bool isFilled = false;
    const bool isClean = std::all_of(rows.cbegin() + 1, rows.cend(), [&](const QStringList &row) {
        const QString &cell = row.at(column);
        bool isNumber = false;
        cell.toDouble(&isNumber);
        isFilled = isFilled || isNumber;
        return isNumber || cell.isEmpty();
    });
    return isClean && isFilled;
}

/// Returns the cells of the table, with the headings in the first row.
QVector<QStringList> cellsOf(const QJsonArray &objects, const QVector<Column> &columns)
{
    QStringList headings;
    for (const Column &column : columns)
        headings.append(column.heading);
    QVector<QStringList> rows{headings};
    for (const QJsonValue object : objects) {
        QStringList row;
        for (const Column &column : columns)
            row.append(object.toObject().value(QLatin1String(column.key)).toVariant().toString().simplified());
        rows.append(row);
    }
    return rows;
}

} // namespace

QString tableOf(const QJsonArray &objects, const QVector<Column> &columns)
{
    const QVector<QStringList> rows = cellsOf(objects, columns);
    QVector<int> widths(columns.size(), 0);
    QVector<bool> numeric(columns.size(), false);
    for (int column = 0; column < columns.size(); ++column) {
        for (const QStringList &row : rows)
            widths[column] = std::max(widths[column], int(row.at(column).size()));
        numeric[column] = isNumeric(rows, column);
    }

    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (int column = 0; column < columns.size(); ++column) {
            const QString &cell = row.at(column);
            line += numeric.at(column) ? cell.rightJustified(widths.at(column)) : cell.leftJustified(widths.at(column));
            line += QLatin1String("  ");
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}
