#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QStringList>

namespace cabledoc {

/// Returns the names of all paper sizes in the order in which a user interface offers them.
QStringList paperSizeNames();

/// Returns the name of the paper size that begins with the given text and a colon, such as "A4", or that is the text.
/// Upper and lower case are the same. Returns an empty string if there is none.
QString paperSizeNamed(const QString &text);

/// Returns the width and height in inches of the paper with the given name, in portrait (orientation 0) or landscape
/// (1). Returns noDimensions() for any other name or orientation.
QSizeF paperDimensions(const QString &name, int orientation);

/// Returns -1.0 by -1.0, the size of an unknown paper.
QSizeF noDimensions();

} // namespace cabledoc
