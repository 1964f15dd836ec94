#pragma once

#include "schedule.h"
#include "schedulerow.h"

#include <bitset>

namespace cabledoc {

struct ScheduleFile
{
    QString error;                     ///< why it cannot be read; empty when it can
    QVector<ScheduleProblem> problems; ///< in the order of the file
    QVector<ScheduleRow> rows;         ///< whole only when there are no problems
    std::bitset<column::Count> has;    ///< which columns the file has
};

/// Reads a schedule and checks all that can be said without the job, but whether that can hold characters beyond
/// Latin-1.
ScheduleFile readSchedule(const QString &fileName, bool canHoldAll);

} // namespace cabledoc
