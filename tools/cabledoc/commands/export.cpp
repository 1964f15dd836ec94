#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

ExitCode runExport(const CommandLine &line)
{
    const QString output = line.value("output");
    if (!BktEditor::checkBktExtension(output))
        return line.usageError(Program::tr("the name of a template must end in \".bkt\""));
    if (const ExitCode error = refuseExistingFile(output))
        return error;
    if (const ExitCode error = loadJob(line.argument(0)))
        return error;
    JobEditor &job = JobEditor::Instance();
    return job.Export(output) ? Done : fail(CannotSave, output, job.error());
}
