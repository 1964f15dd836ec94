#pragma once

#include "drawingfonts.h"
#include "jobsnapshot.h"
#include "plancontent.h"

namespace cabledoc {

/// Draws the sheet at the given position, as many times larger as the factor says. The names of the devices keep their
/// size.
PlanContent networkSheet(const JobSnapshot &job, int sheet, double factor, const TextMeasure &measure);

} // namespace cabledoc
