#pragma once

#include "cabledoc_export.h"

#include <QtCore/QStringList>

namespace cabledoc {

// The names of elements as tables and commands write them. The name of a port has the ids of its floor and its room as
// parts before its own id, such as "Ground/Office/7". The part of the room "Undefined" is empty.

/// Returns the parts of a name as one text, separated by "/". A backslash comes before each "/", ";" or backslash of a
/// part.
CABLEDOC_EXPORT QString nameText(const QStringList &parts);
/// Returns the parts of the name in a text.
CABLEDOC_EXPORT QStringList partsOfName(const QString &text);
/// Returns several names as one text, separated by "; ".
CABLEDOC_EXPORT QString nameListText(const QStringList &names);
/// Returns the names in a text. An empty text has none.
CABLEDOC_EXPORT QStringList namesIn(const QString &text);

} // namespace cabledoc
