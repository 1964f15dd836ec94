#include "commandline.h"
#include "csvparameters.h"
#include "documents.h"
#include "output.h"
#include "problems.h"

#include <cabledoc/jobeditor.h>
#include <cabledoc/schedule.h>

using namespace cabledoc;

namespace {

ExitCode printReport(const CommandLine &line, const ScheduleReport &report)
{
    const QJsonObject members{{QStringLiteral("file"), line.argument(0)},
                              {QStringLiteral("schedule"), line.argument(1)},
                              {QStringLiteral("dryRun"), line.isSet("dry-run")},
                              {QStringLiteral("floors"), report.floors},
                              {QStringLiteral("rooms"), report.rooms},
                              {QStringLiteral("ports"), report.ports},
                              {QStringLiteral("cables"), report.cables},
                              {QStringLiteral("changed"), report.changed},
                              {QStringLiteral("warnings"), arrayOf(report.warnings)},
                              {QStringLiteral("problems"), arrayOf(report.problems)}};
    return printJson({}, "cabledoc-schedule-import-1", members);
}

ExitCode printCounts(const CommandLine &line, const ScheduleReport &report)
{
    if (isQuiet() || isDocumentPrinted(line))
        return Done;
    const QString text = line.isSet("dry-run")
                             ? Program::tr("floors %1, rooms %2, ports %3, cables %4 to add; %5 cables to change\n")
                             : Program::tr("floors %1, rooms %2, ports %3, cables %4 added; %5 cables changed\n");
    return printText(
        {}, text.arg(report.floors).arg(report.rooms).arg(report.ports).arg(report.cables).arg(report.changed));
}

} // namespace

ExitCode runScheduleImport(const CommandLine &line)
{
    CsvOptions options;
    if (const ExitCode error = readCsvOptions(line, &options))
        return error;
    const bool isDryRun = line.isSet("dry-run");
    if (const ExitCode error = isDryRun ? loadJob(line) : lockAndLoadJob(line))
        return error;
    ScheduleReport report;
    const QString schedule = line.argument(1);
    const ExitCode notRead = readFile(line, schedule, [&](const QString &path) {
        report = importSchedule(JobEditor::Instance(), path, options, isDryRun);
        return report.error;
    });
    if (notRead != Done)
        return notRead;

    const bool printsJson = line.isSet("json");
    if (!report.problems.isEmpty()) {
        if (printsJson)
            printReport(line, report);
        else
            printProblems(schedule, report.problems);
        return CannotLoad;
    }
    if (!isDryRun) {
        if (const ExitCode notSaved = saveChangedJob(line))
            return notSaved;
    }
    if (printsJson)
        return printReport(line, report);
    printWarnings(schedule, report.warnings);
    return printCounts(line, report);
}
