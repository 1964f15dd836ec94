#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "table.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QMap>

namespace {

QJsonObject describeFloor(JobEditor &job, const QString &tag)
{
    const Floor floor = job.getFloor(tag);
    int rooms = 0;
    int ports = 0;
    int verticalRuns = 0;
    const QStringList roomTags = job.getRooms(tag, true);
    for (const QString &room : roomTags) {
        // Every floor has the room "Undefined", which is not drawn.
        rooms += room == QLatin1String("Undefined") ? 0 : 1;
        ports += int(job.getPorts(tag, room, true).size());
        verticalRuns += int(job.getVertRuns(tag, room, true).size());
    }
    return {{QStringLiteral("id"), floor.id()},
            {QStringLiteral("tag"), tag},
            {QStringLiteral("ceilingHeight"), floor.ceilingHeight()},
            {QStringLiteral("rooms"), rooms},
            {QStringLiteral("ports"), ports},
            {QStringLiteral("verticalRuns"), verticalRuns},
            {QStringLiteral("points"), int(job.getPoints(tag, true).size())},
            {QStringLiteral("texts"), int(job.getFloorFreeTexts(tag, true).size())}};
}

QJsonObject describeSheet(JobEditor &job, const QString &tag)
{
    return {{QStringLiteral("id"), job.getSheetIdByTag(tag)},
            {QStringLiteral("tag"), tag},
            {QStringLiteral("devices"), int(job.getDevices(tag, true).size())},
            {QStringLiteral("points"), int(job.getVertices(tag, true).size())},
            {QStringLiteral("texts"), int(job.getFreeTexts(tag, true).size())}};
}

QJsonObject describeJob(JobEditor &job)
{
    QJsonArray floors;
    const QStringList floorTags = job.getFloorTags();
    for (const QString &tag : floorTags)
        floors.append(describeFloor(job, tag));
    QJsonArray sheets;
    const QStringList sheetTags = job.getSheetTags();
    for (const QString &tag : sheetTags)
        sheets.append(describeSheet(job, tag));
    const QStringList cables = job.getCables(true);
    QMap<QString, int> cablesOfStatus;
    for (const QString &cable : cables)
        ++cablesOfStatus[job.getCableStatus(cable)];
    QJsonArray statuses;
    for (auto status = cablesOfStatus.cbegin(); status != cablesOfStatus.cend(); ++status)
        statuses.append(
            QJsonObject{{QStringLiteral("status"), status.key()}, {QStringLiteral("cables"), status.value()}});
    return {{QStringLiteral("file"), job.filename()},
            {QStringLiteral("floors"), floors},
            {QStringLiteral("sheets"), sheets},
            {QStringLiteral("cables"), int(cables.size())},
            {QStringLiteral("cablesByStatus"), statuses},
            {QStringLiteral("connections"), int(job.getConnections(true).size())},
            {QStringLiteral("activePorts"), int(job.getActivePorts(true).size())}};
}

QString tablesOf(const QJsonObject &job)
{
    const QVector<Column> floorColumns{
        {"id", Program::tr("Floor")},
        {"tag", Program::tr("Tag")},
        {"ceilingHeight", Program::tr("Ceiling")},
        {"rooms", Program::tr("Rooms")},
        {"ports", Program::tr("Ports")},
        {"verticalRuns", Program::tr("Vertical runs")},
        {"points", Program::tr("Points")},
        {"texts", Program::tr("Texts")},
    };
    const QVector<Column> sheetColumns{
        {"id", Program::tr("Sheet")},      {"tag", Program::tr("Tag")},     {"devices", Program::tr("Devices")},
        {"points", Program::tr("Points")}, {"texts", Program::tr("Texts")},
    };
    const QVector<Column> statusColumns{{"status", Program::tr("Test status")}, {"cables", Program::tr("Cables")}};
    const QVector<Column> cableColumns{{"cables", Program::tr("Cables")},
                                       {"connections", Program::tr("Connections")},
                                       {"activePorts", Program::tr("Active ports")}};

    QStringList tables{tableOf(job.value(QStringLiteral("floors")).toArray(), floorColumns),
                       tableOf(job.value(QStringLiteral("sheets")).toArray(), sheetColumns)};
    const QJsonArray statuses = job.value(QStringLiteral("cablesByStatus")).toArray();
    if (!statuses.isEmpty())
        tables.append(tableOf(statuses, statusColumns));
    tables.append(tableOf({job}, cableColumns));
    return tables.join(QLatin1Char('\n'));
}

} // namespace

ExitCode runInfo(const CommandLine &line)
{
    if (const ExitCode error = loadJob(line.argument(0)))
        return error;
    const QJsonObject description = describeJob(JobEditor::Instance());
    return line.isSet("json") ? printJson(description) : printText(tablesOf(description));
}
