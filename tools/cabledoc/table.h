#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QString>
#include <QtCore/QVector>

/// The key of a value in JSON objects, and the heading of its column.
struct Column
{
    const char *key;
    QString heading;
};

/// Returns the objects as lines of text: the headings, and one row for each object. Columns are aligned and two blanks
/// apart. Columns of numbers are aligned to the right. Line breaks in a value become blanks.
QString tableOf(const QJsonArray &objects, const QVector<Column> &columns);
