#include "command.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>

ExitCode runImport(const QStringList &arguments)
{
    const QString templateOption = QStringLiteral("template");
    const QString missingOnlyOption = QStringLiteral("missing-only");
    Command command(QStringLiteral("import"),
                    QCoreApplication::translate("runImport",
                                                "Lets a job file take over the contractor and the settings of a "
                                                "template, and the test definitions and bundles that it lacks."));
    command.addFileOption({templateOption},
                          QCoreApplication::translate("runImport", "The template. It is not changed."),
                          QStringLiteral("FILE"));
    command.addOption({missingOnlyOption,
                       QCoreApplication::translate("runImport", "Only add the default test definitions and the bundles "
                                                                "that the job lacks.")});
    command.addMaximumSizeOption();
    if (!command.parse(arguments) || !command.lockAndLoadJob() || !command.loadTemplate(command.value(templateOption)))
        return command.exitCode();

    JobEditor &job = JobEditor::Instance();
    if (command.isSet(missingOnlyOption))
        job.ImportMissingDefaultCableTypes(&BktEditor::Instance());
    else
        job.Import(&BktEditor::Instance());
    if (!job.fileChanged() || job.save())
        return Done;
    return command.saveError(job.filename(), job.error());
}
