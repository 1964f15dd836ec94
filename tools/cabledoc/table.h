#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <vector>

/// A column of a table: its name in JSON, and its translated heading. A column without a heading is only in JSON.
struct Column
{
    const char *key;
    QString heading;
};

/// A table that the program prints as text or as JSON. A cell that is not valid is empty.
struct Table
{
    QVector<Column> columns;
    QVector<QVariantList> rows;
};

/// A column of a text: its heading, and a cell of one line for each row.
struct TextColumn
{
    QString heading;
    bool isNumeric; ///< whether it is aligned to the right
    QStringList cells;
};

/// Returns a text in one line, as a cell of a text.
QString inOneLine(const QString &text);
/// Returns the columns as text, with one line for the headings and one for each row.
QString textOf(const std::vector<TextColumn> &columns);
/// Returns the table as text, with one line for the headings and one for each row. Columns of numbers are aligned to
/// the right.
QString textOf(const Table &table);
/// Returns a row as an object.
QJsonObject objectOf(const Table &table, int row);
/// Returns the rows as objects.
QJsonArray arrayOf(const Table &table);
