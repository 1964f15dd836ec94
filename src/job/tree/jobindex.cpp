#include "jobindex.h"

#include "childelements.h"
#include "jobwords.h"

#include <QtCore/QVector>

using namespace cabledoc;

namespace {

using Elements = QVector<QDomElement>;

/// The container of that name in each of the elements.
Elements containersIn(const Elements &parents, const QString &containerName)
{
    Elements containers;
    for (const QDomElement &parent : parents)
        containers.append(parent.firstChildElement(containerName));
    return containers;
}

QMap<QString, ContainerIndex> roomsIn(const Elements &floors)
{
    QMap<QString, ContainerIndex> roomsOfFloor;
    for (const QDomElement &floor : floors) {
        ContainerIndex &rooms = roomsOfFloor[floor.tagName()];
        for (const QDomElement &room : ChildElements(floor.firstChildElement(words::RoomList)))
            rooms.append(room);
    }
    return roomsOfFloor;
}

Elements roomsOf(const Elements &floors)
{
    Elements rooms;
    for (const QDomElement &roomList : containersIn(floors, words::RoomList))
        rooms += reachableChildren(roomList);
    return rooms;
}

} // namespace

void JobIndex::rebuild(ElementKind kind, const QDomElement &root)
{
    const auto list = [&root](const QString &name) { return root.firstChildElement(name); };
    const auto floors = [&list] { return reachableChildren(list(words::FloorList)); };
    const auto sheets = [&list] { return reachableChildren(list(words::SheetList)); };
    Elements containers;
    switch (kind) {
    case ElementKind::Cables:
        containers = {list(words::CableList)};
        break;
    case ElementKind::Connections:
        containers = {list(words::ConnectionList)};
        break;
    case ElementKind::Sheets:
        containers = {list(words::SheetList)};
        break;
    case ElementKind::Devices:
        containers = containersIn(sheets(), words::DeviceList);
        break;
    case ElementKind::Vertices:
        containers = containersIn(sheets(), words::VerticeList);
        break;
    case ElementKind::FreeTexts:
        containers = containersIn(sheets(), words::FreeTextList);
        break;
    case ElementKind::Floors:
        containers = {list(words::FloorList)};
        break;
    case ElementKind::Rooms:
        containers = containersIn(floors(), words::RoomList);
        roomsOfFloor = roomsIn(floors());
        break;
    case ElementKind::Ports:
        containers = containersIn(roomsOf(floors()), words::PortList);
        break;
    case ElementKind::ActivePorts:
        containers = {list(words::ActiveNetworkTestList).firstChildElement(words::ActivePortList)};
        break;
    case ElementKind::VerticalRuns:
        containers = containersIn(roomsOf(floors()), words::VerticalRunList);
        break;
    case ElementKind::Points:
        containers = containersIn(floors(), words::PointList);
        break;
    case ElementKind::FloorFreeTexts:
        containers = containersIn(floors(), words::FreeTextList);
        break;
    case ElementKind::Count:
        return;
    }
    Elements inOrder;
    for (const QDomElement &container : std::as_const(containers)) {
        for (const QDomElement &element : ChildElements(container))
            inOrder.append(element);
    }
    (*this)[kind].rebuild(inOrder);
}

ReferenceIndex &JobIndex::allReferences(const QDomElement &root)
{
    if (references)
        return *references;
    references.emplace();
    const auto list = [&root](const QString &name) { return root.firstChildElement(name); };
    Elements containers;
    // Rooms and floors that share a tag with another one come into reach when that is removed.
    for (const QDomElement &floor : ChildElements(list(words::FloorList))) {
        for (const QDomElement &room : ChildElements(floor.firstChildElement(words::RoomList)))
            containers.append(room.firstChildElement(words::VerticalRunList));
    }
    containers += {list(words::CableList), list(words::ConnectionList),
                   list(words::ActiveNetworkTestList).firstChildElement(words::ActivePortList)};
    for (const QDomElement &container : std::as_const(containers)) {
        for (const QDomElement &element : ChildElements(container))
            references->insert(element);
    }
    return *references;
}

CableLists::CableLists(const QDomElement &cableList)
{
    for (const QDomElement &cable : ChildElements(cableList)) {
        tags.append(cable.tagName());
        ids.append(cable.attribute(words::Id));
    }
    // In big jobs a second walk is faster than a second attribute in the first.
    auto tag = tags.cbegin();
    for (const QDomElement &cable : ChildElements(cableList))
        tagsOfType[cable.attribute(words::Type)].append(*tag++);
}
