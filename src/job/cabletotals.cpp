#include "cabletotals.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace cabledoc {

namespace {

struct Lengths
{
    std::optional<double> measured;
    std::optional<double> estimated;
};

Lengths lengthsOf(const JobSnapshot &job, int cable, bool metric)
{
    const auto known = [](double length) {
        return length >= 0.0 && std::isfinite(length) ? std::optional<double>(length) : std::nullopt;
    };
    return {known(double(job.measuredLength(cable, metric))), known(job.estimatedLength(cable, metric))};
}

void add(CableGroup *group, const Lengths &lengths)
{
    ++group->cables;
    if (lengths.measured) {
        ++group->measured;
        group->measuredLength += *lengths.measured;
    }
    if (lengths.estimated) {
        ++group->estimated;
        group->estimatedLength += *lengths.estimated;
    }
    if (lengths.measured && lengths.estimated) {
        ++group->compared;
        group->difference += *lengths.measured - *lengths.estimated;
    }
}

/// Returns the position of the floor of a port or vertical run, or -1 if the job does not have it.
int floorOf(const JobSnapshot &job, const snapshot::Target &end)
{
    if (!end.exists())
        return -1;
    const int room = end.kind == ElementKind::Ports ? job.ports().at(end.position).holder
                                                    : job.verticalRuns().at(end.position).holder;
    return job.rooms().at(room).holder;
}

/// Positions of the lower and the upper floor of a cable. Both are the same for a cable that stays on one floor.
using Floors = std::pair<int, int>;

Floors floorsOf(const JobSnapshot &job, const snapshot::Cable &cable)
{
    const auto [first, second] = std::minmax({floorOf(job, cable.fromTarget), floorOf(job, cable.toTarget)});
    return {first < 0 ? second : first, second};
}

QVector<CableGroup> listOf(const std::map<QString, CableGroup> &groups)
{
    QVector<CableGroup> list;
    for (const auto &[name, group] : groups) {
        list.append(group);
        list.last().name = name;
    }
    return list;
}

QVector<FloorGroup> listOf(const std::map<Floors, CableGroup> &groups, const QVector<snapshot::Floor> &floors)
{
    const auto idOf = [&floors](int floor) { return floor < 0 ? QString() : floors.at(floor).id; };
    QVector<FloorGroup> list;
    for (const auto &[ends, group] : groups) {
        list.append({group, ends.first == ends.second ? QString() : idOf(ends.second)});
        list.last().name = idOf(ends.first);
    }
    return list;
}

} // namespace

CableTotals totalsOf(const JobSnapshot &job, bool metric)
{
    CableTotals totals;
    std::map<QString, CableGroup> byType;
    std::map<QString, CableGroup> byUse;
    std::map<Floors, CableGroup> byFloor;
    std::map<QString, CableGroup> byBundle;
    std::map<QString, CableGroup> byStatus;
    int position = 0;
    for (const snapshot::Cable &cable : job.cables()) {
        const Lengths lengths = lengthsOf(job, position++, metric);
        for (CableGroup *group : {&totals.all, &byType[cable.type], &byUse[cable.use], &byFloor[floorsOf(job, cable)],
                                  &byBundle[cable.bundleName], &byStatus[cable.test.status]})
            add(group, lengths);
    }
    totals.byType = listOf(byType);
    totals.byUse = listOf(byUse);
    totals.byFloor = listOf(byFloor, job.floors());
    totals.byBundle = listOf(byBundle);
    totals.byStatus = listOf(byStatus);
    for (const snapshot::Port &port : job.ports())
        ++totals.portsByUse[port.use];
    return totals;
}

} // namespace cabledoc
