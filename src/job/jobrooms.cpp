#include "jobeditor_p.h"
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

/// Returns a generated tag with the first free number after that of the last room.
QString newTag(const JobTree &tree)
{
    ElementIndex &rooms = tree.index().of(ElementKind::Rooms);
    // This is the last tag in string order, in which "Room9" comes after "Room10". The room "Undefined" does not count.
    const int last = numberAfter(words::RoomTagPrefix, rooms.lastTag(words::Undefined));
    return words::RoomTagPrefix + QString::number(rooms.firstFreeTagNumber(words::RoomTagPrefix, last + qint64(1)));
}

/// Returns a generated id with the prefix and the first free number after that of the last room on the floor.
QString newId(const JobTree &tree, const QString &floorTag, const QString &prefix)
{
    ContainerIndex *rooms = tree.index().roomsOf(floorTag);
    if (rooms == nullptr)
        return prefix;
    const int last = numberAfter(prefix, rooms->lastId(words::Undefined));
    return prefix + QString::number(rooms->firstFreeIdNumber(prefix, last + qint64(1)));
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
    RoomFields fields = room.fields();
    if (!addmode::keepsTag(mode))
        fields.element = newTag(d->tree);
    else if (!d->mayBeName(fields.element))
        return QString();
    if (!addmode::keepsId(mode))
        fields.id = newId(d->tree, fields.floor, fields.id);
    const QDomElement there = d->tree.room(fields.floor, fields.element);
    return (there.isNull() ? d->add(roomKind(), fields, addmode::GivenNames) : there).tagName();
}

void JobEditor::removeRoom(const QString &floorTag, const QString &tag)
{
    const QDomElement room = d->tree.room(floorTag, tag);
    if (room.isNull() || tag == words::Undefined)
        return;
    const QDomElement undefined = d->tree.undefinedRoom(d->tree.element(ElementKind::Floors, floorTag));
    for (const ElementSchema *held : jobSchema()) {
        if (held->holder != ElementKind::Rooms)
            continue;
        const QDomElement source = held->listIn(room);
        const QDomElement target = d->tree.ensure(held->listName(), undefined);
        while (source.hasChildNodes())
            d->tree.move(source.firstChild(), target);
    }
    d->tree.remove(room);
}

void JobEditor::removeRoom(const Room &room)
{
    removeRoom(room.floor(), room.element());
}

Room JobEditor::getRoomByTag(const QString &floorTag, const QString &tag)
{
    if (tag == words::Undefined)
        return undefinedRoom();
    return Room(d->tree.read(roomKind(), d->tree.room(floorTag, tag)));
}

Room JobEditor::getRoomByTag(const QString &tag)
{
    if (tag == words::Undefined)
        return undefinedRoom();
    return Room(d->tree.read(roomKind(), tag));
}

Room JobEditor::getRoomById(const QString &floorTag, const QString &id)
{
    // The tag of the room "Undefined" is its id.
    if (id == words::Undefined)
        return undefinedRoom();
    return Room(d->tree.read(roomKind(), d->tree.roomById(floorTag, id)));
}

void JobEditor::setRoomPos(const QString &floorTag, const QString &id, int x, int y, int width, int height)
{
    const QDomElement room = d->tree.roomById(floorTag, id);
    d->tree.setAttribute(room, words::X, toText(x));
    d->tree.setAttribute(room, words::Y, toText(y));
    d->tree.setAttribute(room, words::Width, toText(width));
    d->tree.setAttribute(room, words::Height, toText(height));
}

void JobEditor::setRoomName(const QString &floorTag, const QString &id, const QString &newId)
{
    d->tree.setAttribute(d->tree.roomById(floorTag, id), words::Id, newId);
}

// The following setters add the attributes that a room of an older file lacks, as getRoomById() does.

void JobEditor::setRoomNamePos(const QString &floorTag, const QString &id, const QPoint &position)
{
    getRoomById(floorTag, id);
    const QDomElement room = d->tree.roomById(floorTag, id);
    d->tree.setAttribute(room, words::NameX, toText(position.x()));
    d->tree.setAttribute(room, words::NameY, toText(position.y()));
}

void JobEditor::setRoomLayer(const QString &floorTag, const QString &id, int layer)
{
    getRoomById(floorTag, id);
    d->tree.setAttribute(d->tree.roomById(floorTag, id), words::Layer, toText(layer));
}

void JobEditor::setShowRoomName(const QString &floorTag, const QString &id, int show)
{
    getRoomById(floorTag, id);
    d->tree.setAttribute(d->tree.roomById(floorTag, id), words::ShowName, toText(show));
}

void JobEditor::setShowRoomDimensions(const QString &floorTag, const QString &id, int show)
{
    getRoomById(floorTag, id);
    d->tree.setAttribute(d->tree.roomById(floorTag, id), words::ShowDimensions, toText(show));
}
