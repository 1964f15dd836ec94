#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/jobeditor.h>

namespace {

constexpr int givenId = 1;

/// Copies a floor with all that belongs to it. Returns why this cannot be done, or an empty text.
QString copyFloor(JobEditor &job, const QString &id, const QString &newId)
{
    const QString source = job.getFloorTagById(id);
    if (source.isEmpty())
        return Program::tr("there is no floor \"%1\"").arg(id);
    if (job.floorExists(newId, false))
        return Program::tr("there already is a floor \"%1\"").arg(newId);
    const Floor floor = job.getFloor(source);
    const QString copy = job.addFloor(QString(), newId, floor.ceilingHeight(), floor.pic(), givenId);
    const QPoint origin = job.getFloorBackgroundOrigin(source);
    job.setFloorBackgroundPic(copy, floor.pic(), origin.x(), origin.y());
    job.setBackgroundOption(copy, job.getBackgroundOption(source));
    job.copyFloor(source, copy, {}, false);
    return QString();
}

/// Copies a sheet without its connections. Returns why this cannot be done, or an empty text.
QString copySheet(JobEditor &job, const QString &id, const QString &newId)
{
    const QString source = job.getSheetTagById(id);
    if (source.isEmpty())
        return Program::tr("there is no sheet \"%1\"").arg(id);
    if (job.sheetExists(newId, false))
        return Program::tr("there already is a sheet \"%1\"").arg(newId);
    job.copySheet(source, job.addSheet(QString(), newId, givenId));
    return QString();
}

} // namespace

ExitCode runCopy(const CommandLine &line)
{
    const QString kind = line.argument(1);
    const bool isFloor = kind == QLatin1String("floor");
    if (!isFloor && kind != QLatin1String("sheet"))
        return line.usageError(Program::tr("\"%1\" is neither \"floor\" nor \"sheet\"").arg(kind));
    const QString newId = line.argument(3);
    if (newId.isEmpty() || !JobEditor::Instance().canHold(newId))
        return line.usageError(Program::tr("\"%1\" cannot be a name").arg(newId));
    if (const ExitCode error = lockAndLoadJob(line))
        return error;
    JobEditor &job = JobEditor::Instance();
    const QString problem = (isFloor ? copyFloor : copySheet)(job, line.argument(2), newId);
    return problem.isEmpty() ? saveChangedJob(line) : fail(CannotLoad, line.argument(0), problem);
}
