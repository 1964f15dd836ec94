#include "commandline.h"
#include "csvparameters.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/jobeditor.h>
#include <cabledoc/schedule.h>

#include <QtCore/QJsonArray>

#include <cstdio>

using namespace cabledoc;

namespace {

/// Prints problems in the form that editors know from compilers. "%1" in the form stands for the message.
void printProblems(const QString &fileName, const QVector<ScheduleProblem> &problems, const QString &form)
{
    const QString lines = firstLines(fileName, int(problems.size()), [&](int number) {
        const ScheduleProblem &problem = problems.at(number);
        return QStringLiteral("%1:%2:%3: %4")
            .arg(fileName, QString::number(problem.row), QString::number(problem.column), form.arg(problem.message));
    });
    std::fputs(qPrintable(lines), stderr);
}

QJsonObject objectOf(const ScheduleProblem &problem)
{
    return {{QStringLiteral("row"), problem.row},
            {QStringLiteral("column"), problem.column},
            {QStringLiteral("message"), problem.message}};
}

ExitCode printReport(const QString &schedule, const ScheduleReport &report, bool isDryRun)
{
    QJsonArray warnings;
    for (const ScheduleProblem &warning : report.warnings)
        warnings.append(objectOf(warning));
    const QJsonObject counts{{QStringLiteral("file"), JobEditor::Instance().filename()},
                             {QStringLiteral("schedule"), schedule},
                             {QStringLiteral("dryRun"), isDryRun},
                             {QStringLiteral("floors"), report.floors},
                             {QStringLiteral("rooms"), report.rooms},
                             {QStringLiteral("ports"), report.ports},
                             {QStringLiteral("cables"), report.cables},
                             {QStringLiteral("changed"), report.changed},
                             {QStringLiteral("warnings"), warnings}};
    return printJson(counts, QStringLiteral("problems"), int(report.problems.size()),
                     [&report](int number) { return objectOf(report.problems.at(number)); });
}

ExitCode printCounts(const ScheduleReport &report, bool isDryRun)
{
    const QString text = isDryRun
                             ? Program::tr("floors %1, rooms %2, ports %3, cables %4 to add; %5 cables to change\n")
                             : Program::tr("floors %1, rooms %2, ports %3, cables %4 added; %5 cables changed\n");
    return printText(
        text.arg(report.floors).arg(report.rooms).arg(report.ports).arg(report.cables).arg(report.changed));
}

} // namespace

ExitCode runScheduleImport(const CommandLine &line)
{
    CsvOptions options;
    if (const ExitCode error = readCsvOptions(line, &options))
        return error;
    const bool isDryRun = line.isSet("dry-run");
    const QString fileName = line.argument(0);
    const QString schedule = line.argument(1);
    if (const ExitCode error = isDryRun ? loadJob(fileName) : lockAndLoadJob(fileName))
        return error;
    const ScheduleReport report = importSchedule(JobEditor::Instance(), schedule, options, isDryRun);
    if (!report.error.isEmpty())
        return fail(CannotLoad, schedule, report.error);

    const bool printsJson = line.isSet("json");
    if (!report.problems.isEmpty()) {
        if (printsJson)
            printReport(schedule, report, isDryRun);
        else
            printProblems(schedule, report.problems, QStringLiteral("%1"));
        return CannotLoad;
    }
    // This does nothing after a dry run, because the job is unchanged.
    if (const ExitCode error = saveChangedJob())
        return error;
    if (printsJson)
        return printReport(schedule, report, isDryRun);
    printProblems(schedule, report.warnings, Program::tr("warning: %1"));
    return printCounts(report, isDryRun);
}
