#pragma once

#include "drawingfonts.h"
#include "jobsnapshot.h"
#include "scene.h"

namespace cabledoc {

/// Returns the lines of a text whose top left corner is at the given place, in its font. The size of the font is
/// multiplied by the factor.
QVector<SceneText> linesOf(const snapshot::FreeText &text, const QPointF &corner, double factor,
                           const TextMeasure &measure);

} // namespace cabledoc
