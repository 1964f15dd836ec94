#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// The rows as lines of text, the columns aligned and two blanks apart. The first row is the heading.
/// Columns of numbers stand to the right. Line breaks in a cell become blanks.
QString formatTable(const QVector<QStringList> &rows);

/// A key of JSON objects and the heading of its column.
struct Column
{
    QString key;
    QString heading;
};

/// The same of an array of objects, one row each.
QString tableOf(const QJsonArray &objects, const QVector<Column> &columns);
