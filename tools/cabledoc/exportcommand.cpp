#include "command.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>

ExitCode runExport(const QStringList &arguments)
{
    Command command(QStringLiteral("export"),
                    QCoreApplication::translate("runExport", "Makes a template of the contractor, the settings, the "
                                                             "test definitions and the bundles of a job file."));
    command.addOutputOption();
    command.addMaximumSizeOption();
    if (!command.parse(arguments))
        return command.exitCode();
    if (!BktEditor::checkBktExtension(command.output()))
        return command.usageError(
            QCoreApplication::translate("runExport", "the name of a template must end in \".bkt\""));
    if (!command.mayCreate(command.output()) || !command.loadJob())
        return command.exitCode();
    JobEditor &job = JobEditor::Instance();
    return job.Export(command.output()) ? Done : command.saveError(command.output(), job.error());
}
