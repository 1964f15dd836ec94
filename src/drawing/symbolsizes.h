#pragma once

#include <QtCore/QPointF>
#include <QtCore/QVector>

namespace cabledoc {

/// A symbol before its size is known.
struct SymbolPlace
{
    QPointF center;
    double size = 0.0; ///< length of its sides
};

/// Makes symbols smaller that would cover their neighbours, but not smaller than a legible size.
void shrinkCrowdedSymbols(QVector<SymbolPlace> *symbols);

} // namespace cabledoc
