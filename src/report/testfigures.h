#pragma once

#include "drawingfonts.h"
#include "scene.h"
#include "testdef.h"
#include "testresults.h"

namespace cabledoc {

/// Draws which pins of both ends of a cable are connected. Pairs that are not wired as in the test definition are red.
/// Pairs without a measurement have no line.
Scene wireMapFigure(const TestDef &definition, const cable_struct &block, const TextMeasure &measure);

/// Draws the response curves of a test that have samples, side by side. Returns nothing if there are none.
std::optional<Scene> curvesFigure(const TestResults &results, const TextMeasure &measure);

} // namespace cabledoc
