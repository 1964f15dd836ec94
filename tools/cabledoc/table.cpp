#include "table.h"

#include <algorithm>

namespace {

/// Returns whether a text is in one line, without more blanks than are needed.
bool isSimple(const QString &text)
{
    bool isAfterBlank = true;
    for (const QChar character : text) {
        const bool isBlank = character.isSpace();
        if (isBlank && (isAfterBlank || character != QLatin1Char(' ')))
            return false;
        isAfterBlank = isBlank;
    }
    return text.isEmpty() || !isAfterBlank;
}

/// Returns the texts of a column, each in one line. Columns of which all texts are numbers or empty are numeric.
TextColumn textsOf(const Table &table, int column)
{
    TextColumn texts{table.columns.at(column).heading, false, {}};
    texts.cells.reserve(table.rows.size());
    bool isNumeric = true;
    bool isFilled = false;
    for (const QVariantList &row : table.rows) {
        const QString cell = inOneLine(row.at(column).toString());
        texts.cells.append(cell);
        if (!isNumeric || cell.isEmpty())
            continue;
        isFilled = true;
        cell.toDouble(&isNumeric);
    }
    texts.isNumeric = isNumeric && isFilled;
    return texts;
}

} // namespace

QString inOneLine(const QString &text)
{
    // Most texts need not be copied.
    return isSimple(text) ? text : text.simplified();
}

QString textOf(const std::vector<TextColumn> &columns)
{
    std::vector<int> widths;
    int lineLength = 1;
    for (const TextColumn &column : columns) {
        qsizetype width = column.heading.size();
        for (const QString &cell : column.cells)
            width = std::max<qsizetype>(width, cell.size());
        widths.push_back(int(width));
        lineLength += int(width) + 2;
    }
    const int rows = columns.empty() ? 0 : int(columns.front().cells.size());
    QString text;
    text.reserve(lineLength * (rows + 1));
    const auto appendLine = [&](const auto &cellOf) {
        for (std::size_t number = 0; number < columns.size(); ++number) {
            const QString &cell = cellOf(columns[number]);
            const bool isNumeric = columns[number].isNumeric;
            const int blanks = widths[number] - int(cell.size());
            if (!isNumeric)
                text += cell;
            text.resize(text.size() + blanks, QLatin1Char(' '));
            if (isNumeric)
                text += cell;
            text += QLatin1String("  ");
        }
        while (text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        text += QLatin1Char('\n');
    };
    appendLine([](const TextColumn &column) -> const QString & { return column.heading; });
    for (int row = 0; row < rows; ++row)
        appendLine([row](const TextColumn &column) -> const QString & { return column.cells.at(row); });
    return text;
}

QString textOf(const Table &table)
{
    std::vector<TextColumn> columns;
    for (int column = 0; column < table.columns.size(); ++column) {
        if (!table.columns.at(column).heading.isEmpty())
            columns.push_back(textsOf(table, column));
    }
    return textOf(columns);
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
