#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/jobeditor.h>

ExitCode runNew(const CommandLine &line)
{
    constexpr int maximumFloors = 1000;
    const QString number = line.isSet("floors") ? line.value("floors") : QStringLiteral("1");
    const int floors = number.toInt();
    if (floors < 1 || floors > maximumFloors)
        return line.usageError(
            Program::tr("\"%1\" is not a number from 1 to %2").arg(number, QString::number(maximumFloors)));

    JobEditor &job = JobEditor::Instance();
    if (!job.New(line.argument(0))) {
        printMessage(job.error());
        return CannotSave;
    }
    if (const ExitCode error = refuseExistingFile(job.filename()))
        return error;
    const Floor first = job.getFloor(job.getFloorTags().constFirst());
    const QString floorName = JobEditor::tr("Floor_");
    for (int i = 1; i < floors; ++i)
        job.addFloor(QString(), floorName, first.ceilingHeight(), QString(), 0);
    return job.save() ? Done : fail(CannotSave, job.filename(), job.error());
}
