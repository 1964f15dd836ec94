#pragma once

#include "scene.h"

class QPainter;

namespace cabledoc {

class Vocabulary;

/// Paints a scene with a painter whose unit is the millimetre.
void paintScene(QPainter *painter, const Scene &scene);

/// Returns the vocabulary of a symbol.
const Vocabulary &vocabularyOf(const SceneSymbol &symbol);
/// Returns a name that all symbols with the same picture share, such as "use-data".
QString nameOf(const SceneSymbol &symbol);

/// Returns the lengths of the dashes and gaps of a line, in millimetres. It is empty for a solid line.
QVector<double> dashesOf(const LineStyle &style);

} // namespace cabledoc
