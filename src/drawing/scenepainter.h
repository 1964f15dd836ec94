#pragma once

#include "scene.h"
#include "units.h"

class QPainter;

namespace cabledoc {

class Vocabulary;

/// A length in millimetres, 1/300 inch. Lines with many points are written in this unit, because whole numbers make
/// files much smaller.
constexpr double dotSize = millimetersInAnInch / 300.0;
/// Returns whether a line is written in dots.
bool isInDots(const SceneLine &line);
/// Returns how far the points of a line are from the first one, in dots. Almost whole numbers are whole.
QVector<QPointF> pointsInDots(const SceneLine &line);

/// Paints a scene with a painter whose unit is the millimetre.
void paintScene(QPainter *painter, const Scene &scene);

/// Returns the vocabulary of a symbol.
const Vocabulary &vocabularyOf(const SceneSymbol &symbol);
/// Returns a name that all symbols with the same picture share, such as "use-data".
QString nameOf(const SceneSymbol &symbol);

/// Returns the lengths of the dashes and gaps of a line, in millimetres. It is empty for a solid line.
QVector<double> dashesOf(const LineStyle &style);

} // namespace cabledoc
