#include "commandline.h"
#include "documents.h"
#include "drawingfiles.h"
#include "namedelements.h"

#include <cabledoc/curvedrawing.h>
#include <cabledoc/jobsnapshot.h>

ExitCode runCurves(const CommandLine &line)
{
    cabledoc::DrawingOptions options;
    int dpi = 0;
    const QString wrong = readDrawingOptions(line, &options, &dpi);
    if (!wrong.isEmpty())
        return line.usageError(wrong);
    cabledoc::JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    const QString name = line.argument(1);
    const QVector<NamedElement> cables = cablesNamed(job, name);
    if (const ExitCode error =
            refuseUnclear(line.argument(0), name, cables, Program::tr("there is no cable \"%1\"").arg(name)))
        return error;
    return writeDrawing(line, cabledoc::drawCurves(job, cables.constFirst().element.position, options), dpi);
}
