#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/jobeditor.h>
#include <cabledoc/schedule.h>

ExitCode runScheduleExport(const CommandLine &line)
{
    if (const ExitCode error = loadJob(line.argument(0)))
        return error;
    return printData(cabledoc::exportSchedule(JobEditor::Instance()));
}
