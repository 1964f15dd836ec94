#include "table.h"

#include <algorithm>

namespace {

/// Returns the text of a cell in one line.
QString textOf(const QVariant &cell)
{
    return cell.toString().simplified();
}

/// Returns whether all cells of the column are numbers or empty. At least one must be a number.
bool isNumeric(const Table &table, int column)
{
    bool isFilled = false;
    const bool isClean = std::all_of(table.rows.cbegin(), table.rows.cend(), [&](const QVariantList &row) {
        const QString cell = textOf(row.at(column));
        bool isNumber = false;
        cell.toDouble(&isNumber);
        isFilled = isFilled || isNumber;
        return isNumber || cell.isEmpty();
    });
    return isClean && isFilled;
}

int widthOf(const Table &table, int column)
{
    qsizetype width = table.columns.at(column).heading.size();
    for (const QVariantList &row : table.rows)
        width = std::max<qsizetype>(width, textOf(row.at(column)).size());
    return int(width);
}

} // namespace

QString textOf(const Table &table)
{
    struct TextColumn
    {
        int number;
        int width;
        bool isNumeric;
    };
    QVector<TextColumn> columns;
    for (int number = 0; number < table.columns.size(); ++number) {
        if (!table.columns.at(number).heading.isEmpty())
            columns.append({number, widthOf(table, number), isNumeric(table, number)});
    }
    QString text;
    const auto appendLine = [&](const auto &cellOf) {
        for (const TextColumn &column : std::as_const(columns)) {
            const QString cell = cellOf(column.number);
            text += column.isNumeric ? cell.rightJustified(column.width) : cell.leftJustified(column.width);
            text += QLatin1String("  ");
        }
        while (text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        text += QLatin1Char('\n');
    };
    appendLine([&table](int column) { return table.columns.at(column).heading; });
    for (const QVariantList &row : table.rows)
        appendLine([&row](int column) { return textOf(row.at(column)); });
    return text;
}

QJsonObject objectOf(const Table &table, int row)
{
    QJsonObject object;
    for (int column = 0; column < table.columns.size(); ++column)
        object.insert(QLatin1String(table.columns.at(column).key),
                      QJsonValue::fromVariant(table.rows.at(row).at(column)));
    return object;
}

QJsonArray arrayOf(const Table &table)
{
    QJsonArray array;
    for (int row = 0; row < table.rows.size(); ++row)
        array.append(objectOf(table, row));
    return array;
}
