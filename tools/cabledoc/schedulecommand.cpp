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

/// One line for each of the first ones, in the form that editors know from compilers.
void printProblems(const QString &fileName, const QVector<ScheduleProblem> &problems)
{
    for (const ScheduleProblem &problem : problems.mid(0, maximumShown)) {
        std::fprintf(stderr, "%s:%d:%d: %s\n", qPrintable(fileName), problem.row, problem.column,
                     qPrintable(problem.message));
    }
    const QString more = moreThanShown(int(problems.size()));
    if (!more.isEmpty())
        std::fprintf(stderr, "%s: %s\n", qPrintable(fileName), qPrintable(more));
}

ExitCode printAsJson(const QString &job, const QString &schedule, const ScheduleReport &report, bool isDryRun)
{
    const QJsonObject counts{{QStringLiteral("file"), job},
                             {QStringLiteral("schedule"), schedule},
                             {QStringLiteral("dryRun"), isDryRun},
                             {QStringLiteral("floors"), report.floors},
                             {QStringLiteral("rooms"), report.rooms},
                             {QStringLiteral("ports"), report.ports},
                             {QStringLiteral("cables"), report.cables},
                             {QStringLiteral("changed"), report.changed}};
    return printJson(counts, QStringLiteral("problems"), int(report.problems.size()), [&report](int number) {
        const ScheduleProblem &problem = report.problems.at(number);
        return QJsonObject{{QStringLiteral("row"), problem.row},
                           {QStringLiteral("column"), problem.column},
                           {QStringLiteral("message"), problem.message}};
    });
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
    const QString jsonOption = QStringLiteral("json");
    Command command(
        QStringLiteral("schedule import"),
        Schedule::tr("Brings a job file up to a cable schedule: adds the floors, rooms, ports and cables that "
                     "it lacks and changes the cables that differ. When the schedule has a bad row, the job "
                     "stays as it is."));
    command.addFile(QStringLiteral("SCHEDULE"), Schedule::tr("The schedule, a CSV file. It is not changed."));
    command.addOption({dryRunOption, Schedule::tr("Only tell what would be done.")});
    command.addOption({jsonOption, Schedule::tr("Print JSON instead of lines, with all problems.")});
    command.addMaximumSizeOption();
    if (!command.parse(arguments))
        return command.exitCode();
    const bool isDryRun = command.isSet(dryRunOption);
    if (!(isDryRun ? command.loadJob() : command.lockAndLoadJob()))
        return command.exitCode();

    JobEditor &job = JobEditor::Instance();
    const QString schedule = command.fileName(1);
    const ScheduleReport report = importSchedule(job, schedule, isDryRun);
    if (!report.error.isEmpty())
        return command.loadError(schedule, report.error);
    const bool printsJson = command.isSet(jsonOption);
    if (!report.problems.isEmpty()) {
        if (!printsJson)
            printProblems(schedule, report.problems);
    } else if (job.fileChanged() && !job.save()) {
        return command.saveError(job.filename(), job.error());
    }
    ExitCode printed = Done;
    if (printsJson)
        printed = printAsJson(job.filename(), schedule, report, isDryRun);
    else if (report.problems.isEmpty())
        printed = printData(countsOf(report, isDryRun));
    return report.problems.isEmpty() ? printed : CannotLoad;
}

ExitCode runScheduleExport(const QStringList &arguments)
{
    Command command(QStringLiteral("schedule export"),
                    Schedule::tr("Prints the cable schedule of a job file as CSV. The file is not changed."));
    command.addMaximumSizeOption();
    if (!command.parse(arguments) || !command.loadJob())
        return command.exitCode();
    return printData(exportSchedule(JobEditor::Instance()));
}
