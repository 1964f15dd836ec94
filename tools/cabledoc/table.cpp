#include "table.h"

#include <QtCore/QJsonObject>
#include <QtCore/QVariant>

#include <algorithm>

namespace {

/// Whether all cells of the column below the heading are numbers or empty, and not all of them empty.
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

QString tableOf(const QJsonArray &objects, const QVector<Column> &columns)
{
    QStringList headings;
    for (const Column &column : columns)
        headings.append(column.heading);
    QVector<QStringList> rows{headings};
    for (const QJsonValue object : objects) {
        QStringList row;
        for (const Column &column : columns)
            row.append(object.toObject().value(column.key).toVariant().toString());
        rows.append(row);
    }
    return formatTable(rows);
}
