#include "command.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>

namespace {

constexpr int maximumFloors = 1000;

} // namespace

ExitCode runNew(const QStringList &arguments)
{
    const QString floorsOption = QStringLiteral("floors");
    Command command(QStringLiteral("new"),
                    QCoreApplication::translate("runNew", "Makes a new job file with one sheet. An existing file is "
                                                          "not replaced; \".job\" is added to a name that lacks it."));
    command.addOption(
        {floorsOption,
         QCoreApplication::translate("runNew", "Number of floors, from 1 (the default) to %1.").arg(maximumFloors),
         QStringLiteral("N"), QStringLiteral("1")});
    if (!command.parse(arguments))
        return command.exitCode();
    const int floors = command.value(floorsOption).toInt();
    if (floors < 1 || floors > maximumFloors) {
        return command.usageError(QCoreApplication::translate("runNew", "\"%1\" is no number from 1 to %2")
                                      .arg(command.value(floorsOption), QString::number(maximumFloors)));
    }

    JobEditor &job = JobEditor::Instance();
    if (!job.New(command.fileName())) {
        printMessage(job.error());
        return CannotSave;
    }
    if (!command.mayCreate(job.filename()))
        return command.exitCode();
    const Floor first = job.getFloor(job.getFloorTags().constFirst());
    const QString floorName = JobEditor::tr("Floor_");
    for (int i = 1; i < floors; ++i)
        job.addFloor(QString(), floorName, first.ceilingHeight(), QString(), 0);
    return job.save() ? Done : command.saveError(job.filename(), job.error());
}
