#include "elementtable.h"

#include "csvtext.h"
#include "elementnames.h"
#include "tablereader.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace cabledoc {

namespace {

/// Returns a table as CSV. The function returns the text of a row in the column with a number.
template <typename TextOf>
QByteArray csvOf(QStringList fields, const QVector<int> &rows, const CsvStyle &style, TextOf textOf)
{
    QByteArray text = csvBeginning(style) + csvLine(fields, style);
    for (const int row : rows) {
        for (int column = 0; column < fields.size(); ++column)
            fields[column] = textOf(row, column);
        text += csvLine(fields, style);
    }
    return text;
}

} // namespace

struct ElementTable::Data
{
    Data(const JobSnapshot &document, TableKind tableKind, TableUnit tableUnit)
        : names(document)
        , reader(names, tableKind, TableReader::Names::All)
        , unit(tableUnit)
    {
    }

    ElementNames names;
    TableReader reader;
    TableUnit unit;
    QVector<Column> columns;
    QVector<int> positions; ///< of the elements of the rows
};

ElementTable::ElementTable(const JobSnapshot &document, TableKind kind, TableUnit unit)
    : d(std::make_unique<Data>(document, kind, unit))
{
    for (const TableColumn &column : columnsOf(kind))
        d->columns.append(
            {columnName(column, unit), isNumeric(column), isImported(column.content), isSearchable(column.content)});
    const int count = countOf(document, kind);
    d->positions.reserve(count);
    for (int position = 0; position < count; ++position) {
        if (!isUndefinedRoom(kind, elementOf(document, kind, position)))
            d->positions.append(position);
    }
}

ElementTable::~ElementTable() = default;

const QVector<ElementTable::Column> &ElementTable::columns() const
{
    return d->columns;
}

int ElementTable::columnOf(const QString &name) const
{
    const auto found = std::find_if(d->columns.cbegin(), d->columns.cend(),
                                    [&name](const Column &column) { return column.name == name; });
    return found == d->columns.cend() ? -1 : int(found - d->columns.cbegin());
}

int ElementTable::rowCount() const
{
    return int(d->positions.size());
}

int ElementTable::positionOf(int row) const
{
    return d->positions.at(row);
}

QString ElementTable::text(int row, int column) const
{
    return d->reader.text(columnsOf(d->reader.kind()).at(column), d->unit, d->positions.at(row));
}

QString ElementTable::name(int row) const
{
    return nameText(d->names.partsOf(d->reader.kind(), d->positions.at(row)));
}

bool ElementTable::isNamed(int row) const
{
    return d->names.isNamed(d->reader.kind(), d->positions.at(row));
}

QByteArray ElementTable::toCsv(const QVector<int> &columns, const QVector<int> &rows, const CsvStyle &style) const
{
    QStringList names;
    for (const int column : columns)
        names.append(d->columns.at(column).name);
    return csvOf(names, rows, style, [&](int row, int number) { return text(row, columns.at(number)); });
}

TableExport exportTable(const JobSnapshot &document, TableKind kind, const TableExportOptions &options)
{
    TableExport result;
    result.error = missingScale(document, kind, options.unit);
    if (!result.error.isEmpty())
        return result;
    QVector<const TableColumn *> columns;
    QStringList headings;
    for (const TableColumn &column : columnsOf(kind)) {
        if (isImported(column.content) && (column.content != Content::Tag || options.tags)) {
            columns.append(&column);
            headings.append(columnName(column, options.unit));
        }
    }
    const ElementNames names(document);
    const TableReader reader(names, kind, TableReader::Names::Unique);
    QVector<int> positions;
    for (int position = 0; position < countOf(document, kind); ++position) {
        if (isUndefinedRoom(kind, elementOf(document, kind, position)))
            continue;
        if (options.tags || names.isNamed(kind, position))
            positions.append(position);
        else
            ++result.leftOut;
    }
    result.text = csvOf(headings, positions, options.style, [&](int position, int column) {
        return reader.text(*columns.at(column), options.unit, position);
    });
    return result;
}

} // namespace cabledoc
