#include "commandline.h"
#include "documents.h"
#include "drawingfiles.h"
#include "elementlist.h"
#include "output.h"
#include "suggestion.h"

#include <cabledoc/jobsnapshot.h>
#include <cabledoc/report.h>

#include <QtCore/QFileInfo>

#include <algorithm>

using cabledoc::JobSnapshot;
using cabledoc::ReportKind;
using cabledoc::ReportOptions;
using cabledoc::ReportResult;

namespace {

/// The cables that the options choose, beyond the conditions of --where.
struct Selection
{
    QString floor;
    QString room;
    QDate since;
    QDate until;
};

// Each of these functions reads options. It returns what is wrong with them, or an empty text.

QString readKind(const CommandLine &line, ReportOptions *options)
{
    static const QVector<Choice<ReportKind>> kinds{
        {QStringLiteral("test"), ReportKind::Test},           {QStringLiteral("summary"), ReportKind::Summary},
        {QStringLiteral("inventory"), ReportKind::Inventory}, {QStringLiteral("schedule"), ReportKind::Schedule},
        {QStringLiteral("notes"), ReportKind::Notes},         {QStringLiteral("active"), ReportKind::Active}};
    if (!line.isSet("kind"))
        return {};
    const std::optional<ReportKind> kind = chosen(kinds, line.value("kind"));
    QStringList words;
    for (const auto &choice : kinds)
        words.append(choice.word);
    if (!kind)
        return withSuggestion(Program::tr("there is no report \"%1\"").arg(line.value("kind")),
                              nearest(line.value("kind"), words));
    options->kind = *kind;
    return {};
}

QString readDay(const CommandLine &line, const char *option, QDate *day)
{
    if (!line.isSet(option))
        return {};
    *day = QDate::fromString(line.value(option), QStringLiteral("yyyy-MM-dd"));
    return day->isValid() ? QString() : Program::tr("\"%1\" is not a date such as 2026-01-31").arg(line.value(option));
}

QString readSelection(const CommandLine &line, ReportKind kind, Selection *selection)
{
    if (kind != ReportKind::Test && kind != ReportKind::Schedule) {
        for (const char *option : {"floor", "room", "where", "since", "until", "sort", "failures-first"}) {
            if (line.isSet(option))
                return Program::tr("--%1 is only for the reports \"test\" and \"schedule\"").arg(QLatin1String(option));
        }
    }
    selection->floor = line.value("floor");
    selection->room = line.value("room");
    const QString problem = readDay(line, "since", &selection->since);
    return problem.isEmpty() ? readDay(line, "until", &selection->until) : problem;
}

/// Returns whether the floor and the room are those of one end of the cable.
bool endsThere(const cabledoc::ElementTable &table, int row, const Selection &selection)
{
    const auto isThere = [&](const char *floorColumn, const char *roomColumn) {
        const QString floor = table.text(row, table.columnOf(QLatin1String(floorColumn)));
        const QString room = table.text(row, table.columnOf(QLatin1String(roomColumn)));
        return (selection.floor.isEmpty() || selection.floor == floor)
               && (selection.room.isEmpty() || selection.room == room);
    };
    return isThere("from_floor", "from_room") || isThere("to_floor", "to_room");
}

/// Returns whether the cable was tested on one of the days. A cable without a readable time was not.
bool wasTestedThen(const cabledoc::snapshot::Cable &cable, const Selection &selection)
{
    if (!selection.since.isValid() && !selection.until.isValid())
        return true;
    constexpr int dateLength = 10;
    const QDate day = QDate::fromString(cable.test.time.left(dateLength), Qt::ISODate);
    return day.isValid() && (!selection.since.isValid() || day >= selection.since)
           && (!selection.until.isValid() || day <= selection.until);
}

ExitCode selectCables(const CommandLine &line, const JobSnapshot &job, const Selection &selection, QVector<int> *cables)
{
    ElementList list;
    if (const ExitCode error = list.choose(line, job, cabledoc::TableKind::Cables, QStringLiteral("id")))
        return error;
    for (const int row : list.rows()) {
        const int position = list.table().positionOf(row);
        if (endsThere(list.table(), row, selection) && wasTestedThen(job.cables().at(position), selection))
            cables->append(position);
    }
    if (cables->isEmpty() && !job.cables().isEmpty())
        return fail(WrongUsage, line.argument(0), Program::tr("no cable fulfils the conditions"));
    return Done;
}

} // namespace

ExitCode runReport(const CommandLine &line)
{
    const QString suffix = QFileInfo(line.output().fileName).suffix().toLower();
    const bool isHtml = line.output().isStandard() || suffix == QLatin1String("html");
    if (!isHtml && suffix != QLatin1String("pdf"))
        return line.usageError(Program::tr("the name of the report ends in .pdf or .html"));
    ReportOptions options;
    Selection selection;
    options.metric = line.isSet("metric");
    QString problem = readKind(line, &options);
    if (problem.isEmpty())
        problem = readSelection(line, options.kind, &selection);
    if (problem.isEmpty())
        problem = readPage(line, &options.page);
    if (!problem.isEmpty())
        return line.usageError(problem);
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    if (const ExitCode error = selectCables(line, job, selection, &options.cables))
        return error;
    if (line.isSet("failures-first"))
        cabledoc::moveFailuresToFront(job, &options.cables);
    ReportResult result;
    const ExitCode written = saveDocument(line.output(), [&](const QString &fileName) {
        result = (isHtml ? cabledoc::writeHtmlReport : cabledoc::writePdfReport)(job, options, fileName);
        return result.error;
    });
    printWarnings(line, result.warnings);
    return written;
}
