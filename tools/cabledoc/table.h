#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

/// The rows as lines of text, the columns aligned and two blanks apart. The first row is the heading.
/// Columns of numbers stand to the right. Line breaks in a cell become blanks.
QString formatTable(const QVector<QStringList> &rows);
