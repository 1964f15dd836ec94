#include "jobschedule.h"

#include "jobattributes.h"
#include "jobwords.h"
#include "planplaces.h"
#include "tablecolumns.h"
#include "xmlnames.h"

#include <algorithm>

namespace cabledoc {

JobSchedule::JobSchedule(const JobSnapshot &job, bool characterReferences)
    : m_job(job)
    , m_characterReferences(characterReferences)
{
    findRooms();
    m_endOfPort = namesOf(job.ports(), ElementKind::Ports);
    m_endOfRun = namesOf(job.verticalRuns(), ElementKind::VerticalRuns);
    findCables();
}

void JobSchedule::findRooms()
{
    m_nameOfRoom.resize(m_job.rooms().size());
    int position = 0;
    for (const snapshot::Floor &floor : m_job.floors()) {
        if (m_job.positionOfTag(ElementKind::Floors, floor.element) == position++)
            findRoomsOf(floor);
    }
}

void JobSchedule::findRoomsOf(const snapshot::Floor &floor)
{
    const QString floorId = storedText(floor.id);
    if (!floors.contains(floorId))
        floors.insert(floorId, {floor.element, 0.0, 0});
    double &bottom = floors[floorId].bottom;
    std::set<QString> tags;
    for (int position = floor.rooms.first; position < floor.rooms.end(); ++position) {
        const snapshot::Room &room = m_job.rooms().at(position);
        if (!tags.insert(room.element).second)
            continue;
        const QString name = roomName(room);
        const QRectF area(room.x, room.y, room.width, room.height);
        const auto place = rooms.insert({{floorId, name}, {floor.element, room.element, area, 0}}).first;
        place->second.ports += room.ports.count + room.verticalRuns.count;
        bottom = std::clamp(area.bottom(), bottom, maximumBottom);
        m_nameOfRoom[position] = {floorId, name, QString()};
    }
}

/// Returns the ends at ports or vertical runs. They are empty where an end has no name.
template <typename Elements> QVector<CableEnd> JobSchedule::namesOf(const Elements &elements, ElementKind kind)
{
    QVector<CableEnd> ends;
    for (const auto &element : elements) {
        CableEnd end = m_nameOfRoom.at(element.holder);
        end.port = storedText(element.id);
        const bool hasName = !end.floor.isEmpty() && !end.port.isEmpty();
        // A tag that a port and a vertical run share leads to the port.
        const bool isFound =
            m_job.positionOfTag(kind, element.element) == int(ends.size())
            && (kind == ElementKind::Ports || m_job.positionOfTag(ElementKind::Ports, element.element) < 0);
        ends.append(hasName ? end : CableEnd());
        if (hasName && isFound)
            tagOfEnd.insert({end, element.element});
    }
    return ends;
}

void JobSchedule::findCables()
{
    int position = 0;
    for (const snapshot::Cable &cable : m_job.cables()) {
        const int number = position++;
        const QString id = storedText(cable.id);
        if (id.isEmpty() || cableOfId.contains(id) || m_job.positionOfTag(ElementKind::Cables, cable.element) != number)
            continue;
        cableOfId.insert(id, number);
        cables.append(number);
    }
}

/// Returns the text as a save would write it.
QString JobSchedule::storedText(const QString &text) const
{
    return savedText(text, m_characterReferences);
}

/// Returns the id of a room, or an empty string for "Undefined".
QString JobSchedule::roomName(const snapshot::Room &room) const
{
    const QString id = storedText(room.id);
    return room.element == words::Undefined || id == words::Undefined ? QString() : id;
}

CableEnd JobSchedule::endAt(const snapshot::Target &target) const
{
    if (!target.exists())
        return CableEnd();
    return (target.kind == ElementKind::Ports ? m_endOfPort : m_endOfRun).at(target.position);
}

ScheduleRow JobSchedule::row(int position) const
{
    const snapshot::Cable &cable = m_job.cables().at(position);
    const auto [from, to] = endsOf(position);
    const QString type = storedText(cable.type);
    return {storedText(cable.id),
            type,
            storedCableUse(storedText(cable.use)),
            from.floor,
            from.room,
            from.port,
            to.floor,
            to.room,
            to.port,
            storedText(cable.bundleName),
            storedText(cable.bundleNum),
            storedText(cable.bundleGroupNum),
            color(storedText(cable.color), type)};
}

std::array<CableEnd, 2> JobSchedule::endsOf(int cable) const
{
    return {endAt(m_job.cables().at(cable).fromTarget), endAt(m_job.cables().at(cable).toTarget)};
}

std::set<QString> JobSchedule::uses() const
{
    std::set<QString> uses;
    for (const snapshot::Cable &cable : m_job.cables())
        uses.insert(storedCableUse(storedText(cable.use)));
    for (const snapshot::Port &port : m_job.ports())
        uses.insert(storedText(port.use));
    return uses;
}

QString JobSchedule::color(const QString &text, const QString &type) const
{
    return cableColor(m_job, text, type);
}

} // namespace cabledoc
