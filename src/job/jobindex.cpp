#include "jobindex.h"

#include "childelements.h"
#include "jobeditor.h"
#include "jobwords.h"
#include "xmlnames.h"

#include <QtCore/QSet>
#include <QtCore/QVector>

using namespace cabledoc;

namespace {

using Elements = QVector<QDomElement>;

/// The children of a container that the navigation can reach: the first of each tag.
Elements reachableChildren(const QDomElement &container)
{
    Elements children;
    QSet<QString> tags;
    for (const QDomElement &child : ChildElements(container)) {
        if (tags.contains(child.tagName()))
            continue;
        tags.insert(child.tagName());
        children.append(child);
    }
    return children;
}

/// The container of that name in each of the elements.
Elements containersIn(const Elements &parents, const QString &containerName)
{
    Elements containers;
    for (const QDomElement &parent : parents)
        containers.append(parent.firstChildElement(containerName));
    return containers;
}

QHash<QString, ContainerIndex> roomsIn(const Elements &floors)
{
    QHash<QString, ContainerIndex> roomsOfFloor;
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

QStringList namesIn(const QDomElement &container, bool byTag)
{
    return byTag ? childTags(container) : childIds(container);
}

bool exists(const ElementIndex &index, const QString &text, bool byTag)
{
    return byTag ? index.containsTag(text) : index.containsId(text);
}

} // namespace

void JobIndex::rebuild(ElementKind kind, const QDomElement &root)
{
    const auto list = [&root](const QString &name) { return root.firstChildElement(name); };
    const Elements floors = reachableChildren(list(words::FloorList));
    const Elements sheets = reachableChildren(list(words::SheetList));
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
        containers = containersIn(sheets, words::DeviceList);
        break;
    case ElementKind::Vertices:
        containers = containersIn(sheets, words::VerticeList);
        break;
    case ElementKind::FreeTexts:
        containers = containersIn(sheets, words::FreeTextList);
        break;
    case ElementKind::Floors:
        containers = {list(words::FloorList)};
        break;
    case ElementKind::Rooms:
        containers = containersIn(floors, words::RoomList);
        roomsOfFloor = roomsIn(floors);
        break;
    case ElementKind::Ports:
        containers = containersIn(roomsOf(floors), words::PortList);
        break;
    case ElementKind::ActivePorts:
        containers = {list(words::ActiveNetworkTestList).firstChildElement(words::ActivePortList)};
        break;
    case ElementKind::VerticalRuns:
        containers = containersIn(roomsOf(floors), words::VerticalRunList);
        break;
    case ElementKind::Points:
        containers = containersIn(floors, words::PointList);
        break;
    case ElementKind::FloorFreeTexts:
        containers = containersIn(floors, words::FreeTextList);
        break;
    case ElementKind::Count:
        return;
    }
    ElementIndex &index = (*this)[kind];
    index.clear();
    for (const QDomElement &container : std::as_const(containers)) {
        for (const QDomElement &element : ChildElements(container))
            index.append(element);
    }
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

CableNames cabledoc::cableNamesIn(const QDomElement &cableList)
{
    return {childTags(cableList), childIds(cableList)};
}

QMap<QString, QStringList> cabledoc::cablesByTypeIn(const QDomElement &cableList)
{
    QMap<QString, QStringList> tags;
    for (const QDomElement &cable : ChildElements(cableList))
        tags[cable.attribute(words::Type)].append(cable.tagName());
    return tags;
}

// Rebuilding

void JobEditor::updateAllInternalLists()
{
    m_index->references.reset();
    populateCurrentCablesLists();
    populateCableMap();
    populateCableTypeMap();
    populateConnectionMap();
    populateSheetMap();
    populateDeviceMap();
    populateVerticeMap();
    populateFreeTextMap();
    populateFloorMap();
    populateRoomMap();
    populatePortMap();
    populateActivePortMap();
    populateVerticalRunMap();
    populatePointMap();
    populateFloorFreeTextMap();
}

void JobEditor::populateCurrentCablesLists()
{
    m_index->cables = cableNamesIn(getToCableList());
}

void JobEditor::populateCableMap()
{
    rebuildIndex(ElementKind::Cables);
}

void JobEditor::populateCableTypeMap()
{
    m_index->cablesOfType = cablesByTypeIn(getToCableList());
}

void JobEditor::populateConnectionMap()
{
    rebuildIndex(ElementKind::Connections);
}

void JobEditor::populateSheetMap()
{
    rebuildIndex(ElementKind::Sheets);
}

void JobEditor::populateDeviceMap()
{
    rebuildIndex(ElementKind::Devices);
}

void JobEditor::populateVerticeMap()
{
    rebuildIndex(ElementKind::Vertices);
}

void JobEditor::populateFreeTextMap()
{
    rebuildIndex(ElementKind::FreeTexts);
}

void JobEditor::populateFloorMap()
{
    rebuildIndex(ElementKind::Floors);
}

void JobEditor::populateRoomMap()
{
    rebuildIndex(ElementKind::Rooms);
}

void JobEditor::populatePortMap()
{
    rebuildIndex(ElementKind::Ports);
}

void JobEditor::populateActivePortMap()
{
    rebuildIndex(ElementKind::ActivePorts);
}

void JobEditor::populateVerticalRunMap()
{
    rebuildIndex(ElementKind::VerticalRuns);
}

void JobEditor::populatePointMap()
{
    rebuildIndex(ElementKind::Points);
}

void JobEditor::populateFloorFreeTextMap()
{
    rebuildIndex(ElementKind::FloorFreeTexts);
}

void JobEditor::rebuildIndex(ElementKind kind)
{
    m_index->rebuild(kind, m_document.firstChild().toElement());
}

// Existence

bool JobEditor::cableExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Cables], text, byTag);
}

bool JobEditor::connectionExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Connections], text, byTag);
}

bool JobEditor::floorExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Floors], text, byTag);
}

bool JobEditor::sheetExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Sheets], text, byTag);
}

bool JobEditor::roomExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Rooms], text, byTag);
}

bool JobEditor::portExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Ports], text, byTag);
}

bool JobEditor::vertRunExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::VerticalRuns], text, byTag);
}

bool JobEditor::portOrVertRunExists(const QString &text, bool byTag) const
{
    return portExists(text, byTag) || vertRunExists(text, byTag);
}

bool JobEditor::deviceExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Devices], text, byTag);
}

bool JobEditor::verticeExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Vertices], text, byTag);
}

bool JobEditor::pointExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::Points], text, byTag);
}

bool JobEditor::freeTextExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::FreeTexts], text, byTag);
}

bool JobEditor::floorFreeTextExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::FloorFreeTexts], text, byTag);
}

bool JobEditor::activePortExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[ElementKind::ActivePorts], text, byTag);
}

bool JobEditor::roomExistsOnFloor(const QString &room, const QString &floorTag, bool byTag) const
{
    return !(byTag ? roomElement(floorTag, room) : roomElementById(floorTag, room)).isNull();
}

// Lists and names

QStringList JobEditor::getFloorTags() const
{
    return (*m_index)[ElementKind::Floors].tags();
}

QStringList JobEditor::getSheetTags() const
{
    return (*m_index)[ElementKind::Sheets].tags();
}

QStringList JobEditor::getFloorIds() const
{
    return (*m_index)[ElementKind::Floors].ids();
}

QStringList JobEditor::getSheetIds() const
{
    return (*m_index)[ElementKind::Sheets].ids();
}

QString JobEditor::getFloorIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::Floors].id(tag);
}

QString JobEditor::getSheetIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::Sheets].id(tag);
}

QString JobEditor::getFloorTagById(const QString &id) const
{
    return (*m_index)[ElementKind::Floors].tagOfId(id);
}

QString JobEditor::getSheetTagById(const QString &id) const
{
    return (*m_index)[ElementKind::Sheets].tagOfId(id);
}

QStringList JobEditor::getConnections(bool byTag) const
{
    return namesIn(getToConnectionList(), byTag);
}

QStringList JobEditor::getActivePorts(bool byTag) const
{
    return namesIn(getToActivePortList(), byTag);
}

QStringList JobEditor::getRooms(const QString &floorTag, bool byTag) const
{
    return namesIn(getToRoomList(floorTag), byTag);
}

QStringList JobEditor::getPorts(const QString &floorTag, const QString &roomTag, bool byTag) const
{
    return namesIn(getToPortList(floorTag, roomTag), byTag);
}

QStringList JobEditor::getVertRuns(const QString &floorTag, const QString &roomTag, bool byTag) const
{
    return namesIn(getToVertRunList(floorTag, roomTag), byTag);
}

QStringList JobEditor::getPoints(const QString &floorTag, bool byTag) const
{
    return namesIn(getToPointList(floorTag), byTag);
}

QStringList JobEditor::getFloorFreeTexts(const QString &floorTag, bool byTag) const
{
    return namesIn(getToFloorFreeTextList(floorTag), byTag);
}

QStringList JobEditor::getDevices(const QString &sheetTag, bool byTag) const
{
    return namesIn(getToDeviceList(sheetTag), byTag);
}

QStringList JobEditor::getVertices(const QString &sheetTag, bool byTag) const
{
    return namesIn(getToVerticeList(sheetTag), byTag);
}

QStringList JobEditor::getFreeTexts(const QString &sheetTag, bool byTag) const
{
    return namesIn(getToFreeTextList(sheetTag), byTag);
}

// Navigation

QDomElement JobEditor::getToCableList() const
{
    return getElement(words::CableList);
}

QDomElement JobEditor::getToConnectionList() const
{
    return getElement(words::ConnectionList);
}

QDomElement JobEditor::getToActivePortList() const
{
    return getElement(words::ActiveNetworkTestList).firstChildElement(words::ActivePortList);
}

QDomElement JobEditor::getToRoomList(const QString &floorTag) const
{
    return floorElement(floorTag).firstChildElement(words::RoomList);
}

QDomElement JobEditor::getToPortList(const QString &floorTag, const QString &roomTag) const
{
    return roomElement(floorTag, roomTag).firstChildElement(words::PortList);
}

QDomElement JobEditor::getToVertRunList(const QString &floorTag, const QString &roomTag) const
{
    return roomElement(floorTag, roomTag).firstChildElement(words::VerticalRunList);
}

QDomElement JobEditor::getToPointList(const QString &floorTag) const
{
    return floorElement(floorTag).firstChildElement(words::PointList);
}

QDomElement JobEditor::getToFloorFreeTextList(const QString &floorTag) const
{
    return floorElement(floorTag).firstChildElement(words::FreeTextList);
}

QDomElement JobEditor::getToDeviceList(const QString &sheetTag) const
{
    return sheetElement(sheetTag).firstChildElement(words::DeviceList);
}

QDomElement JobEditor::getToFreeTextList(const QString &sheetTag) const
{
    return sheetElement(sheetTag).firstChildElement(words::FreeTextList);
}

QDomElement JobEditor::getToVerticeList(const QString &sheetTag) const
{
    return sheetElement(sheetTag).firstChildElement(words::VerticeList);
}

QDomElement JobEditor::floorElement(const QString &tag) const
{
    return elementOf(ElementKind::Floors, tag);
}

QDomElement JobEditor::sheetElement(const QString &tag) const
{
    return elementOf(ElementKind::Sheets, tag);
}

QDomElement JobEditor::roomElement(const QString &floorTag, const QString &tag) const
{
    const QDomElement roomList = getToRoomList(floorTag);
    const ElementIndex &rooms = (*m_index)[ElementKind::Rooms];
    const QDomElement room = rooms.element(tag);
    if (!roomList.isNull() && room.parentNode() == roomList)
        return room;
    // The index leads to the first room of a tag; "Undefined", for one, is there on every floor.
    return rooms.isRepeated(tag) ? roomList.firstChildElement(tag) : QDomElement();
}

QDomElement JobEditor::roomElementById(const QString &floorTag, const QString &id) const
{
    const auto rooms = m_index->roomsOfFloor.constFind(floorTag);
    return rooms == m_index->roomsOfFloor.cend() ? QDomElement() : rooms->element(id);
}

bool JobEditor::mayBeName(const QString &tag)
{
    if (isXmlName(tag))
        return true;
    m_error = tr("\"%1\" cannot be the name of an XML element").arg(tag);
    return false;
}
