#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/documentvalues.h>
#include <cabledoc/jobeditor.h>

ExitCode runSet(const CommandLine &line)
{
    if (const ExitCode error = lockForChange(line))
        return error;
    if (const ExitCode error = loadDocument(line))
        return error;
    for (const QString &assignment : line.arguments().mid(1)) {
        const auto end = assignment.indexOf(QLatin1Char('='));
        if (end < 0)
            return line.usageError(Program::tr("\"%1\" is not of the form NAME=VALUE").arg(assignment));
        const QString name = assignment.left(end);
        const QString text = assignment.mid(end + 1);
        const QString problem = isTemplate(line.argument(0)) ? cabledoc::setValue(BktEditor::Instance(), name, text)
                                                             : cabledoc::setValue(JobEditor::Instance(), name, text);
        if (!problem.isEmpty())
            return line.usageError(problem);
    }
    return saveChangedDocument(line);
}
