#pragma once

#include "drawingoptions.h"
#include "jobsnapshot.h"

namespace cabledoc {

/// Draws the response curves of the cable at the given position, which must exist, on one page: near-end crosstalk,
/// echo and channel, each with both series of samples over the numbers of the samples. The values are those of the
/// tester. A curve without samples has an empty diagram. The paper is that of the settings of the report of single
/// cables unless the options name another one. The drawing has an error if the cable has no curves. The program must
/// have a QGuiApplication, but needs no display.
CABLEDOC_EXPORT DrawingResult drawCurves(const JobSnapshot &job, int cable, const DrawingOptions &options);

} // namespace cabledoc
