#include "plainjob.h"

#include <algorithm>
#include <functional>
#include <set>

namespace {

/// Returns the children of lists.
std::vector<Place> childrenOf(const std::vector<Place> &lists)
{
    std::vector<Place> places;
    for (const Place &list : lists) {
        for (PlainElement &element : list.list->children)
            places.push_back({&element, list.list, list.holder, list.floor});
    }
    return places;
}

std::vector<Place> firstOfEachTag(const std::vector<Place> &places)
{
    std::vector<Place> first;
    std::set<QString> tags;
    for (const Place &place : places) {
        if (tags.insert(place.element->name).second)
            first.push_back(place);
    }
    return first;
}

/// Returns the lists with the given name in the given elements.
std::vector<Place> listsIn(const std::vector<Place> &holders, const QString &name)
{
    std::vector<Place> lists;
    for (const Place &holder : holders) {
        if (PlainElement *list = childOf(holder.element, name))
            lists.push_back({nullptr, list, holder.element, holder.holder});
    }
    return lists;
}

std::vector<Place> only(PlainElement *element)
{
    Place place;
    place.element = element;
    return {place};
}

Place childWith(const std::vector<Place> &lists, const std::function<bool(const PlainElement &)> &condition)
{
    for (const Place &place : childrenOf(lists)) {
        if (condition(*place.element))
            return place;
    }
    return {};
}

bool names(const PlainElement &element, const QStringList &attributes, const QString &tag)
{
    return std::any_of(attributes.begin(), attributes.end(), [&](const QString &attribute) {
        return element.has(attribute) && element.text(attribute) == tag;
    });
}

void erase(const Place &place)
{
    place.list->children.remove_if([&place](const PlainElement &child) { return &child == place.element; });
}

} // namespace

// Finding

PlainElement *PlainJob::at(const QStringList &way)
{
    PlainElement *element = &m_root;
    for (const QString &step : way)
        element = childOf(element, step);
    return element;
}

std::vector<Place> PlainJob::lists(Kind kind)
{
    const QString &name = plainKind(kind).list;
    switch (kind) {
    case Kind::ActivePorts:
        return listsIn(only(at({"ActiveNetworkTest_List"})), name);
    case Kind::Rooms:
    case Kind::Points:
    case Kind::FloorTexts:
        return listsIn(counted(Kind::Floors), name);
    case Kind::Devices:
    case Kind::Vertices:
    case Kind::Texts:
        return listsIn(counted(Kind::Sheets), name);
    case Kind::Ports:
    case Kind::VertRuns: {
        std::vector<Place> rooms;
        for (const Place &roomList : lists(Kind::Rooms)) {
            const std::vector<Place> onFloor = firstOfEachTag(childrenOf({roomList}));
            rooms.insert(rooms.end(), onFloor.begin(), onFloor.end());
        }
        return listsIn(rooms, name);
    }
    case Kind::Cables:
    case Kind::Connections:
    case Kind::Floors:
    case Kind::Sheets:
        break;
    }
    return listsIn(only(&m_root), name);
}

std::vector<Place> PlainJob::all(Kind kind)
{
    return childrenOf(lists(kind));
}

std::vector<Place> PlainJob::counted(Kind kind)
{
    return firstOfEachTag(all(kind));
}

Place PlainJob::first(Kind kind, const QString &tag)
{
    return childWith(lists(kind), [&tag](const PlainElement &element) { return element.name == tag; });
}

bool PlainJob::exists(Kind kind, const QString &text, bool byTag)
{
    const std::vector<Place> places = counted(kind);
    return std::any_of(places.begin(), places.end(), [&](const Place &place) {
        return (byTag ? place.element->name : place.element->text("id")) == text;
    });
}

QString PlainJob::tagOfId(Kind kind, const QString &id)
{
    QString tag;
    for (const Place &place : counted(kind)) {
        if (place.element->text("id") == id && (tag.isEmpty() || place.element->name < tag))
            tag = place.element->name;
    }
    return tag;
}

QStringList PlainJob::tags(Kind kind)
{
    QStringList tags;
    for (const Place &place : counted(kind))
        tags.append(place.element->name);
    return tags;
}

Place PlainJob::room(const QString &floorTag, const QString &roomTag)
{
    const Place floor = first(Kind::Floors, floorTag);
    return childWith(listsIn({floor}, "Room_List"),
                     [&roomTag](const PlainElement &element) { return element.name == roomTag; });
}

Place PlainJob::roomById(const QString &floorTag, const QString &id)
{
    const Place floor = first(Kind::Floors, floorTag);
    return childWith(listsIn({floor}, "Room_List"),
                     [&id](const PlainElement &element) { return element.text("id") == id; });
}

PlainElement *PlainJob::cable(const QString &tagOrId)
{
    PlainElement *cable = element(Kind::Cables, tagOrId);
    return cable == nullptr ? element(Kind::Cables, tagOfId(Kind::Cables, tagOrId)) : cable;
}

QStringList PlainJob::endsOnFloor(const QString &floorTag)
{
    QStringList ends;
    for (const Place &room : childrenOf(listsIn({first(Kind::Floors, floorTag)}, "Room_List")))
        ends += namesIn(childOf(room.element, "Port_List"), true)
                + namesIn(childOf(room.element, "VerticalRun_List"), true);
    return ends;
}

QStringList PlainJob::cablesEndingAt(const QStringList &ends)
{
    QStringList tags;
    for (const Place &cable : all(Kind::Cables)) {
        if (ends.contains(cable.element->text("to")) || ends.contains(cable.element->text("from")))
            tags.append(cable.element->name);
    }
    return tags;
}

Fields PlainJob::record(Kind kind, const Place &place)
{
    Fields fields = fieldsOf(plainKind(kind).attributes, place.element);
    fields["tag"] = place.element == nullptr ? QString() : place.element->name;
    fields["holder"] = place.holder == nullptr || place.holder == &m_root ? QString() : place.holder->name;
    fields["floor"] = place.floor == nullptr || place.floor == &m_root ? QString() : place.floor->name;
    return fields;
}

// Removing

PlainElement &PlainJob::undefinedRoom(PlainElement *roomList)
{
    if (PlainElement *room = childOf(roomList, "Undefined"))
        return *room;
    PlainElement &room = roomList->add("Undefined");
    room.attributes["id"] = "Undefined";
    room.add("Port_List");
    room.add("VerticalRun_List");
    return room;
}

void PlainJob::remove(Kind kind, const QString &tag)
{
    const Place place = first(kind, tag);
    if (place.element == nullptr)
        return;
    erase(place);
    dropReferences(kind, tag);
}

void PlainJob::removeFloor(const QString &tag)
{
    const Place place = first(Kind::Floors, tag);
    if (place.element == nullptr)
        return;
    PlainElement floor = *place.element;
    erase(place);
    for (const Place &room : childrenOf(listsIn(only(&floor), "Room_List"))) {
        for (const QString &port : namesIn(childOf(room.element, "Port_List"), true))
            dropReferences(Kind::Ports, port);
        for (const QString &vertRun : namesIn(childOf(room.element, "VerticalRun_List"), true))
            dropReferences(Kind::VertRuns, vertRun);
    }
    for (const QString &point : namesIn(childOf(&floor, "Point_List"), true))
        dropReferences(Kind::Points, point);
}

void PlainJob::removeSheet(const QString &tag)
{
    const Place place = first(Kind::Sheets, tag);
    if (place.element == nullptr)
        return;
    PlainElement sheet = *place.element;
    erase(place);
    for (const QString &device :
         namesIn(childOf(&sheet, "Device_List"), true) + namesIn(childOf(&sheet, "Vertice_List"), true))
        dropReferences(Kind::Devices, device);
}

void PlainJob::removeRoom(const QString &floorTag, const QString &tag)
{
    const Place place = room(floorTag, tag);
    if (place.element == nullptr || tag == "Undefined")
        return;
    PlainElement &undefined = undefinedRoom(place.list);
    for (const char *name : {"Port_List", "VerticalRun_List"}) {
        PlainElement &target = undefined.ensure(name);
        if (PlainElement *source = childOf(place.element, name))
            target.children.splice(target.children.end(), source->children);
    }
    erase(place);
}

/// Removes the elements of a kind that have the tag in one of the attributes.
void PlainJob::removeNaming(Kind kind, const QString &tag, const QStringList &attributes)
{
    for (const Place &place : all(kind)) {
        if (!names(*place.element, attributes, tag))
            continue;
        const QString removed = place.element->name;
        erase(place);
        dropReferences(kind, removed);
    }
}

/// Removes a tag from the lists of tags in the given attributes.
void PlainJob::forget(const std::vector<PlainElement *> &elements, const QString &tag, const QStringList &attributes)
{
    for (PlainElement *element : elements) {
        for (const QString &attribute : attributes) {
            QStringList entries = entriesOf(element->text(attribute));
            if (entries.removeAll(tag) > 0)
                element->attributes[attribute] = entries.join(',');
        }
    }
}

/// Returns all vertical runs, including those that cannot be reached now.
std::vector<PlainElement *> PlainJob::allVertRuns()
{
    std::vector<PlainElement *> vertRuns;
    const std::vector<Place> rooms = childrenOf(listsIn(all(Kind::Floors), "Room_List"));
    for (const Place &vertRun : childrenOf(listsIn(rooms, "VerticalRun_List")))
        vertRuns.push_back(vertRun.element);
    return vertRuns;
}

/// Removes or changes the elements that name a removed element, unless another element has the same tag.
void PlainJob::dropReferences(Kind kind, const QString &tag)
{
    if (kind == Kind::Ports && !exists(Kind::Ports, tag, true))
        removeNaming(Kind::ActivePorts, tag, {"port"});
    if ((kind == Kind::Ports || kind == Kind::VertRuns) && !isEnd(tag))
        removeNaming(Kind::Cables, tag, {"to", "from"});
    if ((kind == Kind::Ports || kind == Kind::VertRuns || kind == Kind::Points) && !isEnd(tag)
        && !exists(Kind::Points, tag, true)) {
        std::vector<PlainElement *> cables;
        for (const Place &cable : all(Kind::Cables))
            cables.push_back(cable.element);
        forget(cables, tag, {"path"});
    }
    if ((kind == Kind::Devices || kind == Kind::Vertices) && !exists(Kind::Devices, tag, true)
        && !exists(Kind::Vertices, tag, true))
        removeNaming(Kind::Connections, tag, {"to", "from"});
    if (kind == Kind::Cables && !exists(Kind::Cables, tag, true))
        forget(allVertRuns(), tag, {"connected", "disconnected"});
}
