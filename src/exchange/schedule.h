#pragma once

#include "cabledoc_export.h"
#include "csvoptions.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

class JobEditor;

namespace cabledoc {

class JobSnapshot;

/// Something in a cable schedule that prevents its import, or that is probably wrong.
using ScheduleProblem = CsvProblem;

/// The result of importSchedule(). If there is an error or a problem, the job has not been changed.
struct ScheduleReport
{
    /// Why the schedule cannot be read or imported, or empty if it can.
    QString error;
    /// Problems in the order of the file.
    QVector<ScheduleProblem> problems;
    /// What is probably wrong, in the order of the file. It does not prevent the import. Empty if there is an error or
    /// a problem.
    QVector<ScheduleProblem> warnings;
    /// Number of floors added.
    int floors = 0;
    /// Number of rooms added.
    int rooms = 0;
    /// Number of ports added.
    int ports = 0;
    /// Number of cables added.
    int cables = 0;
    /// Number of existing cables that have been changed.
    int changed = 0;
};

/// Brings a job up to date with a cable schedule, which is a CSV file with one row for each cable.
///
/// The options tell the encoding of the schedule and the delimiter of its fields. By default, both are detected. The
/// schedule may hold any character if the job writes references, see BKXMLEditor::setCharacterReferences(). Otherwise
/// it may hold only those of Latin-1. A field that holds a delimiter, a quotation mark or a line break, or begins or
/// ends with a blank, must be in quotation marks. The first row names the columns, in any order:
///
///     column                           holds
///     id                               id of the cable; required, and only once in a file
///     type                             name of its test definition
///     use                              what it is used for
///     from_floor, from_room, from_port ids of the floor, room and port where it begins; required columns, but
///                                      all three fields may be empty
///     to_floor, to_room, to_port       ids of the floor, room and port where it ends; required columns, but
///                                      all three fields may be empty
///     bundle                           name of its bundle
///     bundle_number                    its number in the bundle
///     bundle_group                     number of the cables that are pulled together
///     color                            name of a colour such as "#ff8000"; empty for that of the test definition
///
/// All other columns may be missing. Fields that are missing at the end of a row are empty. A row with only empty
/// fields is skipped. An empty room stands for the floor's room "Undefined". The id of a port may be that of a vertical
/// run. If several floors, rooms, ports or cables have the same id, the first one in the document counts.
///
/// The import adds the floors, rooms, ports and cables that the job lacks. It changes existing cables where the
/// schedule differs. It keeps the fields of columns that are not in the schedule, test results and paths. An end of a
/// cable also stays as it is if its floor, room and port have the same ids as in the schedule. Nothing is removed. A
/// job that already agrees with the schedule is not changed. If there is an error or a problem, the job is not changed
/// at all. If dryRun is true, the job is not changed, and the report is the same as that of an import.
///
/// There is a warning for each type that has no test definition in the job, and for each use that is neither in
/// Vocabulary::portUses() nor used in the job already. It names the first row. There is also a warning for each port,
/// vertical run or room at which no cable ends any more because the import has moved the last one, as it happens if the
/// schedule corrects a name. A room stands for all that is in it.
///
/// New floors have the ceiling height of the first floor. New rooms are rectangles of 240 by 160 plan pixels, six in a
/// row, below the existing rooms of the floor. New ports take over the use of the cable and are placed in their room in
/// rows of sixteen. Those in "Undefined" are placed in one line at the top of the plan.
CABLEDOC_EXPORT ScheduleReport importSchedule(JobEditor &job, const QString &fileName, const CsvOptions &options,
                                              bool dryRun = false);
/// Brings a job up to date with a cable schedule like the other importSchedule(), with the default options.
CABLEDOC_EXPORT ScheduleReport importSchedule(JobEditor &job, const QString &fileName, bool dryRun = false);
/// Brings a job up to date with a cable schedule like importSchedule(). The schedule is the given text, which has the
/// form of a file.
CABLEDOC_EXPORT ScheduleReport importScheduleText(JobEditor &job, const QByteArray &text,
                                                  const CsvOptions &options = CsvOptions(), bool dryRun = false);

/// Returns the cable schedule of a job in the given style, with all columns and the cables in document order. The job
/// is not changed.
///
/// An end is empty if it does not exist, or if its port or its floor has no id. Cables without an id are left out, and
/// so are cables whose id belongs to an earlier one. Characters that a save of the job would write as "?" are "?" here
/// too. A colour that is not the name of a colour is replaced by that of the test definition.
///
/// The result can always be imported. Fields that are protected against formulas need CsvOptions::removeProtection.
/// Importing the result into a job without cables and exporting that job again gives the same bytes.
CABLEDOC_EXPORT QByteArray exportSchedule(const JobEditor &job, const CsvStyle &style = CsvStyle());
/// Returns the cable schedule of a job that was read as a snapshot. Characters that a save with character references
/// would write as "?" are "?" here too.
CABLEDOC_EXPORT QByteArray exportSchedule(const JobSnapshot &job, const CsvStyle &style = CsvStyle());

} // namespace cabledoc
