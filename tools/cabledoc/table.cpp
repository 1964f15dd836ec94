#include "table.h"

#include <algorithm>

namespace {

/// Whether all cells of the column below the heading are numbers.
bool isNumeric(const QVector<QStringList> &rows, int column)
{
    return std::all_of(rows.cbegin() + 1, rows.cend(), [column](const QStringList &row) {
        bool isNumber = false;
        row.at(column).toDouble(&isNumber);
        return isNumber;
    });
}

} // namespace

QString formatTable(const QVector<QStringList> &rows)
{
    QVector<QStringList> cells = rows;
    for (QStringList &row : cells) {
        for (QString &cell : row)
            cell = cell.simplified();
    }
    QVector<int> widths(int(cells.constFirst().size()), 0);
    QVector<bool> numeric(widths.size(), false);
    for (int column = 0; column < widths.size(); ++column) {
        for (const QStringList &row : std::as_const(cells))
            widths[column] = std::max(widths[column], int(row.at(column).size()));
        numeric[column] = isNumeric(cells, column);
    }

    QString text;
    for (const QStringList &row : std::as_const(cells)) {
        QString line;
        for (int column = 0; column < widths.size(); ++column) {
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
