#pragma once

#include "drawingoptions.h"
#include "jobsnapshot.h"

namespace cabledoc {

/// Draws the vertical runs of a job on one page: the floors as storeys, the vertical runs with the numbers of the
/// cables through them, by type, and the rooms of the vertical runs with their numbers of ports and cables.
///
/// Vertical runs of one name stand above each other. A cable goes from one to another if its path has them one after
/// the other. The drawing has no scale. If there are so many floors that the page becomes larger than the paper, a
/// warning says so. The paper is that of the settings of floor plans unless the options name another one. The program
/// must have a QGuiApplication, but needs no display.
CABLEDOC_EXPORT DrawingResult drawRiser(const JobSnapshot &job, const DrawingOptions &options);

} // namespace cabledoc
