#pragma once

#include "labels.h"

#include <QtGui/QPolygonF>

namespace cabledoc {

/// A code as a grid of dark and light squares, which are called modules. A bar code has one row.
struct CodeGrid
{
    /// Why the text cannot be encoded, or an empty string.
    QString error;
    int columns = 0;
    int rows = 0;
    /// The modules row by row. Dark ones are true.
    QVector<bool> modules;

    bool isDark(int column, int row) const
    {
        return column >= 0 && row >= 0 && column < columns && row < rows && modules.at(row * columns + column);
    }
};

/// Returns a text as a code, without the light zone around it.
CodeGrid encode(const QString &text, LabelCode code);

/// An area of a grid that is surrounded by straight edges.
struct CodeArea
{
    QPolygonF corners; ///< in modules
    bool isDark = true;
};

/// Returns what has to be drawn, one after the other, to make a grid. Each area is drawn as a whole. Dark modules that
/// touch were otherwise divided by thin light lines on screens and printers.
QVector<CodeArea> areasOf(const CodeGrid &grid);

} // namespace cabledoc
