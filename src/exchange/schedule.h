#pragma once

#include "cabledoc_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

class JobEditor;

namespace cabledoc {

/// Something in a cable schedule that keeps it from being imported.
struct ScheduleProblem
{
    int row = 0;     ///< 1 is the heading; a row of several lines counts once, an empty line too
    int column = 0;  ///< from 1, as in the file
    QString message; ///< what is wrong, translated
};

struct ScheduleReport
{
    QString error;                     ///< why nothing could be read or imported; empty when it could
    QVector<ScheduleProblem> problems; ///< in the order of the file
    int floors = 0;                    ///< added, as all of these
    int rooms = 0;
    int ports = 0;
    int cables = 0;
    int changed = 0; ///< cables that were there and differed
};

/// Cable schedules: CSV with one row for each cable.
///
/// A schedule is UTF-8 text, with or without a byte order mark. It may hold any character if the job writes references
/// (BKXMLEditor::setCharacterReferences()), and otherwise those of Latin-1. Fields are separated by commas; those that
/// hold commas, quotation marks, line breaks or blanks at their ends stand in quotation marks. The first row
/// names the columns, in any order:
///
///     column                         holds
///     id                             the cable's id; needed, and only once in a file
///     type                           the name of its test definition
///     use                            what it is for
///     from_floor from_room from_port the ids of what it ends at; needed, but all three may be empty
///     to_floor to_room to_port       the same of its other end
///     bundle                         the name of its bundle
///     bundle_number bundle_group     its numbers in the bundle and of those pulled together
///     color                          a colour name such as "#ff8000"; empty for that of the test definition
///
/// Columns but those named as needed may be missing. Fields missing at the end of a row are empty, and rows of
/// nothing but empty fields do not count. An empty room is the floor's room "Undefined". A port may be a
/// vertical run. Where several floors, rooms, ports or cables have the same id, the first in the document
/// counts.

/// Brings a job up to a schedule. Floors, rooms and ports that it lacks are added, and so are cables. Cables that
/// it has get what the schedule says otherwise; columns that the schedule lacks, test results and paths stay as they
/// are, and so does an end that has the same names. Nothing is removed. A job that says the same already is not
/// changed. When there are an error or problems nothing is. A dry run changes nothing and reports the same.
///
/// New floors have the ceiling height of the first floor. New rooms are drawn as rectangles of 240 by 160 plan
/// pixels, six in a row, below what rooms the floor has. New ports take over the use of the cable and stand in their
/// room, in rows of sixteen; those in "Undefined" stand in one line at the top of the plan.
CABLEDOC_EXPORT ScheduleReport importSchedule(JobEditor &job, const QString &fileName, bool dryRun = false);

/// The schedule of a job: all columns, and the cables in document order. An end that does not exist, or has no name
/// or no floor's name, is empty. Cables without an id, and those whose id another one before them has, are left out.
/// Characters that a save of the job would write as "?" are "?", and colours that are none are those of the test
/// definitions. So the schedule can be imported; that into a job without cables, exported again, gives the same bytes.
CABLEDOC_EXPORT QByteArray exportSchedule(const JobEditor &job);

} // namespace cabledoc
