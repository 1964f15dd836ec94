#include "commandline.h"
#include "csvparameters.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/jobsnapshot.h>
#include <cabledoc/schedule.h>

ExitCode runScheduleExport(const CommandLine &line)
{
    cabledoc::CsvStyle style;
    if (const ExitCode error = readCsvStyle(line, &style))
        return error;
    cabledoc::JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    return printData(line.output(), cabledoc::exportSchedule(job, style));
}
