#pragma once

#include "tablekind.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

namespace cabledoc {

/// The translation context of the messages about tables.
struct TableText
{
    Q_DECLARE_TR_FUNCTIONS(Table)
};

/// Returns what messages call an element of the kind.
QString nounOf(TableKind kind);
/// Returns what messages call an element with a name, such as: port "Ground/Office/7".
QString namedElement(TableKind kind, const QStringList &name);

} // namespace cabledoc
