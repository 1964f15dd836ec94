#pragma once

#include "drawingfonts.h"
#include "reportblocks.h"

namespace cabledoc {

/// How wide the columns of a table are.
struct TableMeasures
{
    double size; ///< of the letters
    QVector<double> widths;
};

/// Returns the largest size up to the given one, but not below the smallest one, with which a table has the given width
/// at the most, and the widths of its columns. If the smallest size is too large, columns that need less than their
/// share keep what they need, and the others share the rest. The padding is that of a column.
TableMeasures measuresOf(const TableBlock &table, double size, double smallestSize, double padding, double width,
                         const TextMeasure &measure);

} // namespace cabledoc
