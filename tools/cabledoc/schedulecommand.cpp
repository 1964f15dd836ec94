#include "command.h"

#include <cabledoc/jobeditor.h>
#include <cabledoc/schedule.h>

#include <QtCore/QCoreApplication>

#include <cstdio>

using namespace cabledoc;

namespace {

struct Schedule
{
    Q_DECLARE_TR_FUNCTIONS(Schedule)
};

/// One line for each, in the form that editors know from compilers.
void printProblems(const QString &fileName, const QVector<ScheduleProblem> &problems)
{
    for (const ScheduleProblem &problem : problems) {
        std::fprintf(stderr, "%s:%d:%d: %s\n", qPrintable(fileName), problem.row, problem.column,
                     qPrintable(problem.message));
    }
}

QByteArray countsOf(const ScheduleReport &report, bool isDryRun)
{
    const QString text = isDryRun
                             ? Schedule::tr("floors %1, rooms %2, ports %3, cables %4 to add; %5 cables to change\n")
                             : Schedule::tr("floors %1, rooms %2, ports %3, cables %4 added; %5 cables changed\n");
    return text.arg(report.floors)
        .arg(report.rooms)
        .arg(report.ports)
        .arg(report.cables)
        .arg(report.changed)
        .toLocal8Bit();
}

} // namespace

ExitCode runScheduleImport(const QStringList &arguments)
{
    const QString dryRunOption = QStringLiteral("dry-run");
    Command command(
        QStringLiteral("schedule import"),
        Schedule::tr("Brings a job file up to a cable schedule: adds the floors, rooms, ports and cables that "
                     "it lacks and changes the cables that differ. When the schedule has a bad row, the job "
                     "stays as it is."));
    command.addFile(QStringLiteral("SCHEDULE"), Schedule::tr("The schedule, a CSV file. It is not changed."));
    command.addOption({dryRunOption, Schedule::tr("Only tell what would be done.")});
    if (!command.parse(arguments) || !command.loadJob())
        return command.exitCode();

    JobEditor &job = JobEditor::Instance();
    const QString schedule = command.fileName(1);
    const bool isDryRun = command.isSet(dryRunOption);
    const ScheduleReport report = importSchedule(job, schedule, isDryRun);
    if (!report.error.isEmpty())
        return command.loadError(schedule, report.error);
    if (!report.problems.isEmpty()) {
        printProblems(schedule, report.problems);
        return CannotLoad;
    }
    if (job.fileChanged() && !job.save())
        return command.saveError(job.filename(), job.error());
    return printData(countsOf(report, isDryRun));
}

ExitCode runScheduleExport(const QStringList &arguments)
{
    Command command(QStringLiteral("schedule export"),
                    Schedule::tr("Prints the cable schedule of a job file as CSV. The file is not changed."));
    if (!command.parse(arguments) || !command.loadJob())
        return command.exitCode();
    return printData(exportSchedule(JobEditor::Instance()));
}
