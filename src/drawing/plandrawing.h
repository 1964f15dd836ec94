#pragma once

#include "cabledoc_export.h"
#include "drawingoptions.h"
#include "drawingscale.h"
#include "jobsnapshot.h"

namespace cabledoc {

/// What gives cables their colours on a plan.
enum class CableColors {
    Cable,  ///< the colour of each cable
    Type,   ///< the colour of the test definition of the cable's type
    Use,    ///< what the cable is used for
    Bundle, ///< the colour of the cable's bundle
    Status, ///< the status of the cable's test, which is also shown by marks and kinds of lines
};

/// How floor plans are drawn.
struct PlanOptions : DrawingOptions
{
    /// Where a plan is shown. Rooms have names and dimensions that are only shown in one of these places.
    enum Medium {
        OnScreen = 1, ///< on a screen
        OnPaper = 2,  ///< on paper
    };
    /// What happens to a plan that is larger than the paper.
    enum Overflow {
        Tile, ///< it is divided among several sheets, after one with an overview
        Grow, ///< the sheet becomes larger than the paper
    };

    /// Tag of the floor that is drawn, or empty for all floors.
    QString floor;
    /// Scale of the drawing. Without it, the drawing has that of the scale settings of floor plans.
    std::optional<DrawingScale> scale;
    /// Where the plan is shown.
    Medium medium = OnPaper;
    /// What happens to a plan that is larger than the paper.
    Overflow overflow = Tile;
    /// The layers that are drawn. If there are none, all layers are drawn. The layer Layer::Sheet is always drawn.
    QVector<Layer> layers;
    /// What gives cables their colours.
    CableColors colors = CableColors::Type;
    /// Direction of north, in degrees clockwise from the top of the plan. Without it, there is no north arrow.
    std::optional<double> north;
};

/// Draws the floor plans of a job.
///
/// A pixel of the plan is 1/96 inch of the drawing in the scale of the job. In another scale, the plan becomes larger
/// or smaller, but texts and symbols keep their sizes. The plan is never fitted to the paper.
///
/// Each room, port, vertical run, point and text that has a place is drawn. Those without a place, which have the
/// position (-1.0, -1.0), are listed beside the plan. Cables that share a way are drawn once, with their number. Labels
/// do not overlap: a label without room is shortened, moved away with a leader line, or replaced by a number in a list
/// beside the plan. The program must have a QGuiApplication, but needs no display.
CABLEDOC_EXPORT DrawingResult drawFloorPlans(const JobSnapshot &job, const PlanOptions &options);

} // namespace cabledoc
