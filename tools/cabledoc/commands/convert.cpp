#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

namespace {

/// Returns whether the names are those of files that a function knows by their extensions. At least one must be the
/// name of a file, and the other one may be that of standard input or output.
bool haveExtension(const QString &fileName, const Output &output, bool (*isKnown)(const QString &))
{
    const bool isStandardInput = fileName == standardStream;
    return !(isStandardInput && output.isStandard()) && (isStandardInput || isKnown(fileName))
           && (output.isStandard() || isKnown(output.fileName));
}

} // namespace

ExitCode runConvert(const CommandLine &line)
{
    const QString fileName = line.argument(0);
    const Output output = line.output();
    if (haveExtension(fileName, output, JobEditor::checkJobExtension)) {
        const ExitCode error = loadJob(line);
        return error == Done ? saveJob(output) : error;
    }
    if (!haveExtension(fileName, output, BktEditor::checkBktExtension))
        return line.usageError(Program::tr("both names must end in \".job\", or both in \".bkt\""));
    if (const ExitCode error = loadTemplate(line, fileName))
        return error;
    return saveDocument(output, [](const QString &newName) {
        BktEditor &bkt = BktEditor::Instance();
        return bkt.saveAs(newName) ? QString() : bkt.error();
    });
}
