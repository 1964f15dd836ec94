#include "commandline.h"
#include "documents.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

ExitCode runImport(const CommandLine &line)
{
    if (const ExitCode error = lockAndLoadJob(line))
        return error;
    if (const ExitCode error = loadTemplate(line, line.value("template")))
        return error;
    JobEditor &job = JobEditor::Instance();
    if (line.isSet("missing-only"))
        job.ImportMissingDefaultCableTypes(&BktEditor::Instance());
    else
        job.Import(&BktEditor::Instance());
    return saveChangedJob(line);
}
