#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "table.h"

#include <cabledoc/jobsnapshot.h>

using cabledoc::JobSnapshot;

namespace {

Table tableOfFloors(const JobSnapshot &job)
{
    Table table{{
                    {"id", Program::tr("Floor")},
                    {"tag", Program::tr("Tag")},
                    {"ceilingHeight", Program::tr("Ceiling")},
                    {"rooms", Program::tr("Rooms")},
                    {"ports", Program::tr("Ports")},
                    {"verticalRuns", Program::tr("Vertical runs")},
                    {"points", Program::tr("Points")},
                    {"texts", Program::tr("Texts")},
                },
                {}};
    for (const auto &floor : job.floors()) {
        int rooms = 0;
        int ports = 0;
        int verticalRuns = 0;
        for (int number = floor.rooms.first; number < floor.rooms.end(); ++number) {
            const auto &room = job.rooms().at(number);
            // Every floor has the room "Undefined", which is not drawn.
            rooms += room.element == QLatin1String("Undefined") ? 0 : 1;
            ports += room.ports.count;
            verticalRuns += room.verticalRuns.count;
        }
        table.rows.append({floor.id, floor.element, floor.ceilingHeight, rooms, ports, verticalRuns, floor.points.count,
                           floor.texts.count});
    }
    return table;
}

Table tableOfSheets(const JobSnapshot &job)
{
    Table table{{
                    {"id", Program::tr("Sheet")},
                    {"tag", Program::tr("Tag")},
                    {"devices", Program::tr("Devices")},
                    {"points", Program::tr("Points")},
                    {"texts", Program::tr("Texts")},
                },
                {}};
    for (const auto &sheet : job.sheets())
        table.rows.append({sheet.id, sheet.element, sheet.devices.count, sheet.bends.count, sheet.texts.count});
    return table;
}

Table tableOfStatuses(const JobSnapshot &job)
{
    QMap<QString, int> cablesOfStatus;
    for (const auto &cable : job.cables())
        ++cablesOfStatus[cable.test.status];
    Table table{{{"status", Program::tr("Test status")}, {"cables", Program::tr("Cables")}}, {}};
    for (auto status = cablesOfStatus.cbegin(); status != cablesOfStatus.cend(); ++status)
        table.rows.append({status.key(), status.value()});
    return table;
}

Table tableOfCounts(const JobSnapshot &job)
{
    return {{{"cables", Program::tr("Cables")},
             {"connections", Program::tr("Connections")},
             {"activePorts", Program::tr("Active ports")}},
            {{int(job.cables().size()), int(job.connections().size()), int(job.activePorts().size())}}};
}

} // namespace

ExitCode runInfo(const CommandLine &line)
{
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    const Table floors = tableOfFloors(job);
    const Table sheets = tableOfSheets(job);
    const Table statuses = tableOfStatuses(job);
    const Table counts = tableOfCounts(job);
    if (!line.isSet("json")) {
        QStringList tables{textOf(floors), textOf(sheets)};
        if (!statuses.rows.isEmpty())
            tables.append(textOf(statuses));
        tables.append(textOf(counts));
        return printText(line.output(), tables.join(QLatin1Char('\n')));
    }
    QJsonObject object = objectOf(counts, 0);
    object.insert(QStringLiteral("file"), line.argument(0));
    object.insert(QStringLiteral("floors"), arrayOf(floors));
    object.insert(QStringLiteral("sheets"), arrayOf(sheets));
    object.insert(QStringLiteral("cablesByStatus"), arrayOf(statuses));
    return printJson(line.output(), "cabledoc-info-1", object);
}
