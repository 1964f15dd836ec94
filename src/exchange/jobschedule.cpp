#include "jobschedule.h"

#include "childelements.h"
#include "jobattributes.h"
#include "jobeditor.h"
#include "jobwords.h"
#include "qtcompat.h"
#include "xmlnames.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// Largest bottom edge that counts. Rooms of a damaged file could otherwise make the positions of new ones too large
/// for numbers.
constexpr double maximumBottom = 1e6;

QDomElement floorList(const JobEditor &job)
{
    return job.getToCableList().parentNode().firstChildElement(words::FloorList);
}

QRectF areaOf(const QDomElement &room)
{
    const RoomFields fields = roomAttributes().read(room);
    return {fields.x, fields.y, fields.width, fields.height};
}

} // namespace

bool JobSchedule::hasLists(const JobEditor &job)
{
    return !floorList(job).isNull();
}

JobSchedule::JobSchedule(const JobEditor &job)
    : m_job(job)
{
    findRooms();
    // A tag that a port and a vertical run share leads to the port.
    findEnds(words::PortList);
    findEnds(words::VerticalRunList);
    findCables();
    const QVector<TestDef> definitions = job.getTestDefs();
    for (const TestDef &definition : definitions)
        m_colorOfType.insert(definition.id(), definition.color());
}

void JobSchedule::findRooms()
{
    const QVector<QDomElement> reachable = reachableChildren(floorList(m_job));
    for (const QDomElement &floor : reachable)
        findRoomsOf(floor);
}

void JobSchedule::findRoomsOf(const QDomElement &floor)
{
    const QString floorId = storedText(floor, words::Id);
    if (!floors.contains(floorId))
        floors.insert(floorId, {floor.tagName(), floor, 0.0, 0});
    double &bottom = floors[floorId].bottom;
    const QVector<QDomElement> reachable = reachableChildren(floor.firstChildElement(words::RoomList));
    for (const QDomElement &room : reachable) {
        const QString name = roomName(room);
        const QRectF area = areaOf(room);
        rooms.insert({{floorId, name}, {floor.tagName(), room.tagName(), area, 0}});
        bottom = std::clamp(area.bottom(), bottom, maximumBottom);
        m_rooms.append({room, {floorId, name, QString()}});
    }
}

void JobSchedule::findEnds(const QString &listName)
{
    for (const FoundRoom &room : std::as_const(m_rooms)) {
        for (const QDomElement &element : ChildElements(room.element.firstChildElement(listName))) {
            CableEnd end = room.name;
            end.port = storedText(element, words::Id);
            ++rooms[{end.floor, end.room}].ports;
            addEnd(element.tagName(), end);
        }
    }
}

void JobSchedule::addEnd(const QString &tag, const CableEnd &end)
{
    if (m_endOfTag.contains(tag))
        return;
    const bool hasName = !end.floor.isEmpty() && !end.port.isEmpty();
    m_endOfTag.insert(tag, hasName ? end : CableEnd());
    if (hasName)
        tagOfEnd.insert({end, tag});
}

void JobSchedule::findCables()
{
    const QVector<QDomElement> reachable = reachableChildren(m_job.getToCableList());
    for (const QDomElement &cable : reachable) {
        const QString id = storedText(cable, words::Id);
        if (id.isEmpty() || cableOfId.contains(id))
            continue;
        cableOfId.insert(id, cable);
        cables.append(cable);
    }
}

/// Returns the attribute as a save would write it.
QString JobSchedule::storedText(const QDomElement &element, const QString &attribute) const
{
    return savedText(element.attribute(attribute), m_job.characterReferences());
}

QString JobSchedule::roomName(const QDomElement &room) const
{
    const QString id = storedText(room, words::Id);
    return room.tagName() == words::Undefined || id == words::Undefined ? QString() : id;
}

ScheduleRow JobSchedule::row(const QDomElement &cable) const
{
    const CableEnd from = m_endOfTag.value(cable.attribute(words::From));
    const CableEnd to = m_endOfTag.value(cable.attribute(words::To));
    const QString type = storedText(cable, words::Type);
    return {storedText(cable, words::Id),
            type,
            storedCableUse(storedText(cable, words::Use)),
            from.floor,
            from.room,
            from.port,
            to.floor,
            to.room,
            to.port,
            storedText(cable, words::BundleName),
            storedText(cable, words::BundleNum),
            storedText(cable, words::BundleGroupNum),
            color(storedText(cable, words::Color), type)};
}

QString JobSchedule::color(const QString &text, const QString &type) const
{
    if (qtcompat::isColorName(text))
        return text;
    const QString ofType = m_colorOfType.value(type);
    return qtcompat::isColorName(ofType) ? ofType : TestDefFields().color;
}

} // namespace cabledoc
