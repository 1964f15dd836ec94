#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace cabledoc {

/// What stands for the size of a paper that is not known: -1.0 by -1.0.
QSizeF noDimensions();

/// Width and height in inches of the paper of that name, in portrait (orientation 0) or landscape (1);
/// noDimensions() for any other name or orientation.
QSizeF paperDimensions(const QString &name, int orientation);

/// The factor of the predefined scale of that name; 10 for an unknown name.
int scaleFactor(const QString &name);

} // namespace cabledoc
