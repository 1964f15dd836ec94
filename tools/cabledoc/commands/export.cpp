#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/jobeditor.h>

ExitCode runExport(const CommandLine &line)
{
    if (const ExitCode error = loadJob(line))
        return error;
    return saveDocument(line.output(), [](const QString &fileName) {
        JobEditor &job = JobEditor::Instance();
        return job.Export(fileName) ? QString() : job.error();
    });
}
