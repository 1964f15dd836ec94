#include "command.h"
#include "table.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

struct Info
{
    Q_DECLARE_TR_FUNCTIONS(Info)
};

QJsonObject describeFloor(JobEditor &job, const QString &tag)
{
    const Floor floor = job.getFloor(tag);
    int rooms = 0;
    int ports = 0;
    int verticalRuns = 0;
    const QStringList roomTags = job.getRooms(tag, true);
    for (const QString &room : roomTags) {
        // Every floor has the room "Undefined" for what lies in no drawn one.
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
    const QJsonArray statuses = job.value(QStringLiteral("cablesByStatus")).toArray();
    const QString statusTable = statuses.isEmpty()
                                    ? QString()
                                    : tableOf(statuses, {{QStringLiteral("status"), Info::tr("Test status")},
                                                         {QStringLiteral("cables"), Info::tr("Cables")}})
                                          + QLatin1Char('\n');
    return tableOf(job.value(QStringLiteral("floors")).toArray(),
                   {{QStringLiteral("id"), Info::tr("Floor")},
                    {QStringLiteral("tag"), Info::tr("Tag")},
                    {QStringLiteral("ceilingHeight"), Info::tr("Ceiling")},
                    {QStringLiteral("rooms"), Info::tr("Rooms")},
                    {QStringLiteral("ports"), Info::tr("Ports")},
                    {QStringLiteral("verticalRuns"), Info::tr("Vertical runs")},
                    {QStringLiteral("points"), Info::tr("Points")},
                    {QStringLiteral("texts"), Info::tr("Texts")}})
           + QLatin1Char('\n')
           + tableOf(job.value(QStringLiteral("sheets")).toArray(), {{QStringLiteral("id"), Info::tr("Sheet")},
                                                                     {QStringLiteral("tag"), Info::tr("Tag")},
                                                                     {QStringLiteral("devices"), Info::tr("Devices")},
                                                                     {QStringLiteral("points"), Info::tr("Points")},
                                                                     {QStringLiteral("texts"), Info::tr("Texts")}})
           + QLatin1Char('\n') + statusTable
           + tableOf({job}, {{QStringLiteral("cables"), Info::tr("Cables")},
                             {QStringLiteral("connections"), Info::tr("Connections")},
                             {QStringLiteral("activePorts"), Info::tr("Active ports")}});
}

} // namespace

ExitCode runInfo(const QStringList &arguments)
{
    const QString jsonOption = QStringLiteral("json");
    Command command(QStringLiteral("info"),
                    Info::tr("Shows what a job file holds: its floors and sheets in the order of their tags, and how "
                             "many cables, connections and active ports it has."));
    command.addOption({jsonOption, Info::tr("Print JSON instead of tables.")});
    command.addMaximumSizeOption();
    if (!command.parse(arguments) || !command.loadJob())
        return command.exitCode();

    const QJsonObject description = describeJob(JobEditor::Instance());
    return printData(command.isSet(jsonOption) ? QJsonDocument(description).toJson()
                                               : tablesOf(description).toLocal8Bit());
}
