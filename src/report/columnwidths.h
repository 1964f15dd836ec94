#pragma once

#include "drawingfonts.h"
#include "reportblocks.h"

namespace cabledoc {

/// Returns the widths of the columns of a table, which together have the given width at the most. Columns that need
/// less than their share keep what they need, and the others share the rest.
QVector<double> columnWidths(const TableBlock &table, double size, double padding, double width,
                             const TextMeasure &measure);

} // namespace cabledoc
