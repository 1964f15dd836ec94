#include "commandline.h"
#include "csvparameters.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/jobsnapshot.h>
#include <cabledoc/resultstable.h>

ExitCode runResultsExport(const CommandLine &line)
{
    cabledoc::ResultsExportOptions options;
    options.metric = line.isSet("metric");
    if (const ExitCode error = readCsvStyle(line, &options.style))
        return error;
    cabledoc::JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    return printData(line.output(), line.isSet("active-ports") ? cabledoc::exportActiveResults(job, options.style)
                                                               : cabledoc::exportResults(job, options));
}
