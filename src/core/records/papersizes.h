#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QStringList>

namespace cabledoc {

/// Returns the names of all paper sizes in the order in which they are offered.
QStringList paperSizeNames();

/// Returns width and height in inches of the paper with the given name, in portrait (orientation 0) or landscape (1).
/// Returns noDimensions() for any other name or orientation.
QSizeF paperDimensions(const QString &name, int orientation);

/// Returns -1.0 by -1.0, which stands for the size of a paper that is not known.
QSizeF noDimensions();

} // namespace cabledoc
