#pragma once

#include <QtCore/QString>

/// Returns the line with a line break. A line that is longer than a terminal is broken. The further lines begin with
/// the given number of blanks.
QString brokenLine(QString line, int indent = 0);
