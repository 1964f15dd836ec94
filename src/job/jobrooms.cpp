#include "jobeditor.h"

#include "addmode.h"
#include "jobattributes.h"
#include "jobindex.h"
#include "jobwords.h"

using namespace cabledoc;

namespace {

Room undefinedRoom()
{
    Room room;
    room.setElement(words::Undefined);
    room.setID(words::Undefined);
    return room;
}

} // namespace

QString JobEditor::addRoom(const QString &floorTag, int x, int y, int width, int height, const QString &tag,
                           const QString &id, int nameX, int nameY, int showDimensions, int showName, int layer,
                           int mode)
{
    return addRoom(Room(tag, x, y, width, height, id, floorTag, nameX, nameY, showDimensions, showName, layer), mode);
}

QString JobEditor::addRoom(const Room &room, int mode)
{
    if (addmode::keepsTag(mode) && !mayBeName(room.element()))
        return QString();
    const QDomElement roomList = getToRoomList(room.floor());
    if (roomList.isNull())
        return QString();
    RoomFields fields = room.fields();
    if (!addmode::keepsTag(mode))
        fields.element = newRoomTag();
    if (!addmode::keepsId(mode))
        fields.id = newRoomId(fields.floor, fields.id);
    if (!roomElement(fields.floor, fields.element).isNull())
        return fields.element;

    const QDomElement element = appendElement(fields.element, roomList);
    roomAttributes().write(element, fields);
    completeNewRoom(element);
    setDirty(true);
    return fields.element;
}

QString JobEditor::newRoomTag() const
{
    ElementIndex &rooms = (*m_index)[ElementKind::Rooms];
    // The last tag in string order is "Room9" beside "Room10". The room that every floor has does not count.
    const int last = numberAfter(words::RoomTagPrefix, rooms.lastTag(words::Undefined));
    return words::RoomTagPrefix + QString::number(rooms.firstFreeTagNumber(words::RoomTagPrefix, last + qint64(1)));
}

QString JobEditor::newRoomId(const QString &floorTag, const QString &prefix) const
{
    ContainerIndex &roomsOnFloor = m_index->roomsOfFloor[floorTag];
    const int last = numberAfter(prefix, roomsOnFloor.lastId(words::Undefined));
    return prefix + QString::number(roomsOnFloor.firstFreeIdNumber(prefix, last + qint64(1)));
}

/// The floor's room "Undefined", which is added when it is missing. It has no attributes but its id.
QDomElement JobEditor::undefinedRoomElement(const QDomElement &roomList)
{
    QDomElement room = roomList.firstChildElement(words::Undefined);
    if (room.isNull()) {
        room = appendElement(words::Undefined, roomList);
        room.setAttribute(words::Id, words::Undefined);
        completeNewRoom(room);
    }
    return room;
}

/// Adds what every room has and this one lacks.
void JobEditor::addRoomContainers(const QDomElement &room)
{
    ensureElement(words::PortList, room);
    ensureElement(words::VerticalRunList, room);
}

/// Gives a room that was just appended to its floor its containers and its places in the indexes.
void JobEditor::completeNewRoom(const QDomElement &room)
{
    addRoomContainers(room);
    const QDomNode floor = room.parentNode().parentNode();
    // A second floor of the same tag cannot be reached, nor can its rooms.
    if (floorElement(floor.nodeName()) != floor)
        return;
    ElementIndex &rooms = (*m_index)[ElementKind::Rooms];
    if (rooms.containsTag(room.tagName()) && !floor.nextSiblingElement().isNull()) {
        // Which room of that tag is the first in the document, only the document can tell.
        rebuildIndex(ElementKind::Rooms);
        return;
    }
    rooms.append(room);
    m_index->roomsOfFloor[floor.nodeName()].append(room);
}

void JobEditor::removeRoom(const QString &floorTag, const QString &tag)
{
    const QDomElement room = roomElement(floorTag, tag);
    if (room.isNull() || tag == words::Undefined)
        return;
    const QDomElement undefined = undefinedRoomElement(getToRoomList(floorTag));
    // Whether elements that share a tag change their order, or come into reach: then only the document can
    // tell which of them is the first.
    bool isOrderLost = (*m_index)[ElementKind::Rooms].isRepeated(tag);
    const std::pair<QString, ElementKind> contents[] = {{words::PortList, ElementKind::Ports},
                                                        {words::VerticalRunList, ElementKind::VerticalRuns}};
    for (const auto &[containerName, kind] : contents) {
        QDomElement source = room.firstChildElement(containerName);
        QDomElement target = undefined.firstChildElement(containerName);
        if (target.isNull())
            target = appendElement(containerName, undefined);
        while (source.hasChildNodes()) {
            isOrderLost = isOrderLost || (*m_index)[kind].isRepeated(source.firstChild().nodeName());
            target.appendChild(source.firstChild());
        }
    }
    (*m_index)[ElementKind::Rooms].remove(room);
    m_index->roomsOfFloor[floorTag].remove(room);
    removeElement(room);
    if (isOrderLost) {
        rebuildIndex(ElementKind::Ports);
        rebuildIndex(ElementKind::VerticalRuns);
    }
}

void JobEditor::removeRoom(const Room &room)
{
    removeRoom(room.floor(), room.element());
}

Room JobEditor::getRoomByTag(const QString &floorTag, const QString &tag)
{
    if (tag == words::Undefined)
        return undefinedRoom();
    return readRoom(roomElement(floorTag, tag));
}

Room JobEditor::getRoomByTag(const QString &tag)
{
    if (tag == words::Undefined)
        return undefinedRoom();
    return readRoom((*m_index)[ElementKind::Rooms].element(tag));
}

Room JobEditor::getRoomById(const QString &floorTag, const QString &id)
{
    // Of the room "Undefined" tag and id are the same.
    if (id == words::Undefined)
        return undefinedRoom();
    return readRoom(roomElementById(floorTag, id));
}

Room JobEditor::readRoom(const QDomElement &element)
{
    if (element.isNull())
        return Room();
    // Reading brings rooms of older files up to date, on purpose.
    if (roomAttributes().complete(element))
        setDirty(true);
    RoomFields fields = roomAttributes().read(element);
    fields.element = element.tagName();
    fields.floor = element.parentNode().parentNode().nodeName();
    return Room(fields);
}

void JobEditor::setRoomPos(const QString &floorTag, const QString &id, int x, int y, int width, int height)
{
    writeRoomAttributes(floorTag, id, {{words::X, x}, {words::Y, y}, {words::Width, width}, {words::Height, height}});
}

void JobEditor::setRoomName(const QString &floorTag, const QString &id, const QString &newId)
{
    QDomElement room = roomElementById(floorTag, id);
    if (room.isNull())
        return;
    ContainerIndex &roomsOnFloor = m_index->roomsOfFloor[floorTag];
    roomsOnFloor.remove(room);
    const bool isTaken = !roomsOnFloor.element(newId).isNull();
    room.setAttribute(words::Id, newId);
    if (isTaken) {
        // Which room of that id is the first on the floor, only the document can tell.
        rebuildIndex(ElementKind::Rooms);
    } else {
        roomsOnFloor.append(room);
        (*m_index)[ElementKind::Rooms].updateId(room);
    }
    setDirty(true);
}

void JobEditor::setRoomNamePos(const QString &floorTag, const QString &id, const QPoint &position)
{
    getRoomById(floorTag, id); // completes an older room
    writeRoomAttributes(floorTag, id, {{words::NameX, position.x()}, {words::NameY, position.y()}});
}

void JobEditor::setRoomLayer(const QString &floorTag, const QString &id, int layer)
{
    getRoomById(floorTag, id); // completes an older room
    writeRoomAttributes(floorTag, id, {{words::Layer, layer}});
}

void JobEditor::setShowRoomName(const QString &floorTag, const QString &id, int show)
{
    getRoomById(floorTag, id); // completes an older room
    writeRoomAttributes(floorTag, id, {{words::ShowName, show}});
}

void JobEditor::setShowRoomDimensions(const QString &floorTag, const QString &id, int show)
{
    getRoomById(floorTag, id); // completes an older room
    writeRoomAttributes(floorTag, id, {{words::ShowDimensions, show}});
}

void JobEditor::writeRoomAttributes(const QString &floorTag, const QString &id, const QMap<QString, int> &values)
{
    QDomElement room = roomElementById(floorTag, id);
    if (room.isNull())
        return;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        room.setAttribute(value.key(), toText(value.value()));
    setDirty(true);
}
