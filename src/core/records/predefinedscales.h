#pragma once

#include <QtCore/QStringList>

namespace cabledoc {

/// Returns the names of the predefined scales. The English ones come first.
QStringList predefinedScaleNames();

/// Returns the factor of the predefined scale with the given name, or 10 if there is none.
int scaleFactor(const QString &name);

} // namespace cabledoc
