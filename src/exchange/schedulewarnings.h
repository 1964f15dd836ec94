#pragma once

#include "jobschedule.h"
#include "schedulereader.h"

namespace cabledoc {

/// Returns what is probably wrong in a schedule without problems, compared with the job before its import.
QVector<ScheduleProblem> scheduleWarnings(const ScheduleFile &file, const JobSchedule &job);

} // namespace cabledoc
