#pragma once

#include "cabledoc_export.h"
#include "drawingscale.h"
#include "jobsnapshot.h"
#include "scene.h"

#include <QtCore/QDate>
#include <QtCore/QStringList>

#include <optional>

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
struct PlanOptions
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
    /// How the paper lies.
    enum Orientation {
        Portrait,  ///< the short side is at the top
        Landscape, ///< the long side is at the top
    };

    /// Tag of the floor that is drawn, or empty for all floors.
    QString floor;
    /// Scale of the drawing. Without it, the drawing has that of the scale settings of floor plans.
    std::optional<DrawingScale> scale;
    /// Name of the paper size, one of SettingsStrings::paperSizes(). It may be given up to its colon, such as "A4". If
    /// it is empty, the sheet has the size of the page settings of floor plans, or else that of their print settings.
    QString paper;
    /// How the paper lies. Without it, the settings that give the size count, and a paper that is given lies in
    /// landscape.
    std::optional<Orientation> orientation;
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
    /// Revision in the title block.
    QString revision;
    /// Number of the sheet in the title block. If there are several sheets, a dash and their numbers follow.
    QString sheetNumber;
    /// Date in the title block. By default, it is that of SOURCE_DATE_EPOCH, or else the present date, in UTC.
    QDate date;
    /// Folder in which pictures are looked for whose paths are not absolute. By default, it is the working folder.
    QString folder;
};

/// Floor plans, ready to be written.
struct PlanDrawing
{
    /// The drawing. It has no pages if there is an error.
    Drawing drawing;
    /// Why there is no drawing, or an empty string.
    QString error;
    /// What is missing in the drawing, such as a background picture that cannot be read.
    QStringList warnings;
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
CABLEDOC_EXPORT PlanDrawing drawFloorPlans(const JobSnapshot &job, const PlanOptions &options);

} // namespace cabledoc
