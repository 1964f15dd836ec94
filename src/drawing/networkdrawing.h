#pragma once

#include "drawingoptions.h"
#include "jobsnapshot.h"

namespace cabledoc {

/// How sheets with network devices are drawn.
struct NetworkOptions : DrawingOptions
{
    /// Tag of the sheet that is drawn, or empty for all sheets.
    QString sheet;
};

/// Draws the sheets of a job, each on a page of its own: devices with their names, connections through their bends, and
/// texts. Elements without a place are listed beside the drawing.
///
/// A pixel of the sheet is 1/96 inch of the drawing. A sheet that is larger than the paper is reduced, and then the
/// title block and a warning tell by how much. The paper is that of the settings of the network view unless the
/// options name another one. The program must have a QGuiApplication, but needs no display.
CABLEDOC_EXPORT DrawingResult drawNetwork(const JobSnapshot &job, const NetworkOptions &options);

} // namespace cabledoc
