#pragma once

#include "cablecolors.h"
#include "drawingfonts.h"
#include "plancontent.h"
#include "plandrawing.h"

namespace cabledoc {

/// What all floor plans of a drawing share.
struct PlanContext
{
    const JobSnapshot &job;
    const PlanOptions &options;
    const CablePalette &palette;
    const TextMeasure &measure;
    DrawingScale scale;
    double millimetersInAPixel;
};

/// Draws the plan of the floor at the given position.
PlanContent planOf(const PlanContext &context, int floor);

} // namespace cabledoc
