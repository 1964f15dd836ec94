#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

namespace {

constexpr int maximumFloors = 1000;

/// Returns what is wrong with the options for floors, or an empty text.
QString wrongFloors(const CommandLine &line)
{
    if (line.isSet("floor") && line.isSet("floors"))
        return Program::tr("--floor and --floors cannot be given together");
    const int number = line.value("floors").toInt();
    if (line.isSet("floors") && (number < 1 || number > maximumFloors))
        return Program::tr("\"%1\" is not a number from 1 to %2")
            .arg(line.value("floors"), QString::number(maximumFloors));
    const QStringList names = line.values("floor");
    for (const QString &name : names) {
        if (name.isEmpty())
            return Program::tr("a floor must have a name");
        if (names.count(name) > 1)
            return Program::tr("there cannot be two floors \"%1\"").arg(name);
        if (!JobEditor::Instance().canHold(name))
            return Program::tr("\"%1\" contains a character that a job file cannot hold").arg(name);
    }
    return {};
}

/// Gives a new job, which has one floor, the floors of the command line.
void makeFloors(JobEditor &job, const CommandLine &line)
{
    constexpr int generatedId = 0;
    constexpr int givenId = 1;
    const QString firstTag = job.getFloorTags().constFirst();
    const double ceilingHeight = job.getFloor(firstTag).ceilingHeight();
    const QStringList names = line.values("floor");
    if (!names.isEmpty())
        job.setFloorId(firstTag, names.constFirst());
    for (const QString &name : names.mid(1))
        job.addFloor(QString(), name, ceilingHeight, QString(), givenId);
    for (int i = 1; i < line.value("floors").toInt(); ++i)
        job.addFloor(QString(), JobEditor::tr("Floor_"), ceilingHeight, QString(), generatedId);
}

ExitCode makeJob(const CommandLine &line)
{
    const QString problem = wrongFloors(line);
    if (!problem.isEmpty())
        return line.usageError(problem);
    JobEditor &job = JobEditor::Instance();
    if (!job.New(line.argument(0))) {
        printMessage(job.error());
        return CannotSave;
    }
    const Output output{line.argument(0) == standardStream ? standardStream : job.filename(), line.isSet("overwrite")};
    if (const ExitCode error = refuseOutput(output))
        return error;
    makeFloors(job, line);
    return saveJob(output);
}

ExitCode makeTemplate(const CommandLine &line)
{
    if (line.isSet("floor") || line.isSet("floors"))
        return line.usageError(Program::tr("a template has no floors"));
    const Output output{line.argument(0), line.isSet("overwrite")};
    if (const ExitCode error = refuseOutput(output))
        return error;
    return saveDocument(output, [](const QString &fileName) {
        BktEditor &bkt = BktEditor::Instance();
        return bkt.New(fileName) && bkt.save() ? QString() : bkt.error();
    });
}

} // namespace

ExitCode runNew(const CommandLine &line)
{
    return BktEditor::checkBktExtension(line.argument(0)) ? makeTemplate(line) : makeJob(line);
}
