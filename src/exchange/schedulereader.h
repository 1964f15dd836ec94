#pragma once

#include "schedule.h"
#include "schedulerow.h"

#include <bitset>

namespace cabledoc {

/// The content of a schedule.
struct ScheduleFile
{
    /// Why the file cannot be read, or empty if it can.
    QString error;
    /// Problems in the order of the file.
    QVector<ScheduleProblem> problems;
    /// Rows of the schedule. They are complete only if there are no problems.
    QVector<NumberedRow> rows;
    /// Which columns the file has.
    std::bitset<column::Count> has;
    /// Number of the field of each column that the file has, from 0.
    std::array<int, column::Count> fieldOf{};
};

/// Reads a schedule. Checks everything that can be checked without the job, which may or may not hold characters beyond
/// Latin-1.
ScheduleFile readSchedule(const QByteArray &data, const CsvOptions &options, bool canHoldAll);

} // namespace cabledoc
