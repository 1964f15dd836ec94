#include "command.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>

ExitCode runConvert(const QStringList &arguments)
{
    Command command(QStringLiteral("convert"),
                    QCoreApplication::translate("runConvert", "Writes a job or template file of an earlier version as "
                                                              "one of the current version. The file itself is not "
                                                              "changed."));
    command.addOutputOption();
    command.addMaximumSizeOption();
    if (!command.parse(arguments))
        return command.exitCode();
    const bool isTemplate = BktEditor::checkBktExtension(command.fileName());
    const auto hasExtension = isTemplate ? &BktEditor::checkBktExtension : &JobEditor::checkJobExtension;
    if (!hasExtension(command.fileName()) || !hasExtension(command.output())) {
        return command.usageError(
            QCoreApplication::translate("runConvert", "both names must end in \".job\", or both in \".bkt\""));
    }
    if (!command.mayCreate(command.output()))
        return command.exitCode();

    if (isTemplate) {
        if (!command.loadTemplate(command.fileName()))
            return command.exitCode();
        BktEditor &bkt = BktEditor::Instance();
        return bkt.saveAs(command.output()) ? Done : command.saveError(command.output(), bkt.error());
    }
    if (!command.loadJob())
        return command.exitCode();
    JobEditor &job = JobEditor::Instance();
    return job.saveAs(command.output()) ? Done : command.saveError(command.output(), job.error());
}
