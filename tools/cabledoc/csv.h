#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

/// Returns a line of CSV in UTF-8. A cell that is not valid is empty. Flags are "1" or "0".
QByteArray csvLine(const QVariantList &cells);
