#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

ExitCode runConvert(const CommandLine &line)
{
    const QString fileName = line.argument(0);
    const QString output = line.value("output");
    const bool areTemplates = BktEditor::checkBktExtension(fileName) && BktEditor::checkBktExtension(output);
    if (!areTemplates && !(JobEditor::checkJobExtension(fileName) && JobEditor::checkJobExtension(output)))
        return line.usageError(Program::tr("both names must end in \".job\", or both in \".bkt\""));
    if (const ExitCode error = refuseExistingFile(output))
        return error;
    if (const ExitCode error = areTemplates ? loadTemplate(fileName) : loadJob(fileName))
        return error;
    JobEditor &job = JobEditor::Instance();
    BktEditor &bkt = BktEditor::Instance();
    const bool isSaved = areTemplates ? bkt.saveAs(output) : job.saveAs(output);
    return isSaved ? Done : fail(CannotSave, output, areTemplates ? bkt.error() : job.error());
}
