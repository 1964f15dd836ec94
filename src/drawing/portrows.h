#pragma once

#include "symbolsizes.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace cabledoc {

/// Returns the rows of crowded symbols that stand side by side in one room, such as those of a patch panel. Each row
/// has the numbers of its symbols from left to right. The numbers of symbols that are in no row follow, each one alone.
QVector<QVector<int>> symbolRows(const QVector<SymbolPlace> &symbols, const QVector<int> &rooms,
                                 const QVector<bool> &areCrowded);

/// Returns how far the nearest neighbour of each symbol is that stands beside it in the same room, from centre to
/// centre. It is infinite if there is none.
QVector<double> distancesInRow(const QVector<SymbolPlace> &symbols, const QVector<int> &rooms);

/// Returns a list of names. Three or more names that count up, such as "A1", "A2" and "A3", become "A1–A3".
QString shortList(const QStringList &names);

} // namespace cabledoc
