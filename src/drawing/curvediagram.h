#pragma once

#include "drawingfonts.h"
#include "scene.h"
#include "testdata.h"

#include <array>

namespace cabledoc {

/// How a diagram is drawn.
struct CurveStyle
{
    const TextMeasure &measure;
    double numberSize; ///< size of the font of the numbers, in millimetres
};

/// Returns the lines of the first and the second series of samples.
const std::array<LineStyle, 2> &curveLines();

/// Draws both series of samples of a response curve over the numbers of the samples.
void drawCurve(Scene *page, const QRectF &area, const QString &title, const TRUEPHY_PLOT_DATA &curve,
               const CurveStyle &style);

} // namespace cabledoc
