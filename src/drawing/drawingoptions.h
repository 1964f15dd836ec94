#pragma once

#include "cabledoc_export.h"
#include "scene.h"

#include <QtCore/QDate>
#include <QtCore/QStringList>

#include <optional>

namespace cabledoc {

/// What all drawings of a job have in common: the paper and the title block.
struct DrawingOptions
{
    /// How the paper lies.
    enum Orientation {
        Portrait,  ///< the short side is at the top
        Landscape, ///< the long side is at the top
    };

    /// Name of the paper size, one of SettingsStrings::paperSizes(). It may be given up to its colon, such as "A4". If
    /// it is empty, the sheet has the size of the page settings of the job for such drawings, or else that of their
    /// print settings.
    QString paper;
    /// How the paper lies. Without it, the settings that give the size count, and a paper that is given lies in
    /// landscape.
    std::optional<Orientation> orientation;
    /// Revision in the title block.
    QString revision;
    /// Number of the sheet in the title block. If there are several sheets, a dash and their numbers follow.
    QString sheetNumber;
    /// Date in the title block. By default, it is that of SOURCE_DATE_EPOCH, or else the present date, in UTC.
    QDate date;
    /// Folder in which pictures are looked for whose paths are not absolute. By default, it is the working folder.
    QString folder;
};

/// A drawing of a job, ready to be written.
struct DrawingResult
{
    /// The drawing. It has no pages if there is an error.
    Drawing drawing;
    /// Why the job could not be drawn, or an empty string if it was drawn.
    QString error;
    /// What is missing in the drawing, such as a background picture that cannot be read.
    QStringList warnings;
};

} // namespace cabledoc
