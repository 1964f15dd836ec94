#pragma once

#include "drawingfonts.h"

#include <QtCore/QStringList>

namespace cabledoc {

/// Divides a text into lines that are no wider than the given width, at blanks if there are any. Words that are wider
/// than a line are divided as well. An empty text has one empty line.
QStringList wrapped(const TextMeasure &measure, const QString &text, double size, double width, bool isBold = false);

} // namespace cabledoc
