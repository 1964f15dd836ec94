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

Elements roomsOf(const Elements &floors)
{
    Elements rooms;
    for (const QDomElement &roomList : containersIn(floors, words::RoomList))
        rooms += reachableChildren(roomList);
    return rooms;
}

void rebuild(ElementIndex *index, const Elements &containers)
{
    index->clear();
    for (const QDomElement &container : containers) {
        for (const QDomElement &element : ChildElements(container))
            index->append(element);
    }
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
    rebuild(&(*m_index)[JobIndex::Cables], {getToCableList()});
}

void JobEditor::populateCableTypeMap()
{
    m_index->cablesOfType = cablesByTypeIn(getToCableList());
}

void JobEditor::populateConnectionMap()
{
    rebuild(&(*m_index)[JobIndex::Connections], {getToConnectionList()});
}

void JobEditor::populateSheetMap()
{
    rebuild(&(*m_index)[JobIndex::Sheets], {getElement(words::SheetList)});
}

void JobEditor::populateDeviceMap()
{
    const Elements sheets = reachableChildren(getElement(words::SheetList));
    rebuild(&(*m_index)[JobIndex::Devices], containersIn(sheets, words::DeviceList));
}

void JobEditor::populateVerticeMap()
{
    const Elements sheets = reachableChildren(getElement(words::SheetList));
    rebuild(&(*m_index)[JobIndex::Vertices], containersIn(sheets, words::VerticeList));
}

void JobEditor::populateFreeTextMap()
{
    const Elements sheets = reachableChildren(getElement(words::SheetList));
    rebuild(&(*m_index)[JobIndex::FreeTexts], containersIn(sheets, words::FreeTextList));
}

void JobEditor::populateFloorMap()
{
    rebuild(&(*m_index)[JobIndex::Floors], {getElement(words::FloorList)});
}

void JobEditor::populateRoomMap()
{
    const Elements floors = reachableChildren(getElement(words::FloorList));
    rebuild(&(*m_index)[JobIndex::Rooms], containersIn(floors, words::RoomList));
    m_index->roomsOfFloor.clear();
    for (const QDomElement &floor : floors) {
        ContainerIndex &rooms = m_index->roomsOfFloor[floor.tagName()];
        for (const QDomElement &room : ChildElements(floor.firstChildElement(words::RoomList)))
            rooms.append(room);
    }
}

void JobEditor::populatePortMap()
{
    const Elements rooms = roomsOf(reachableChildren(getElement(words::FloorList)));
    rebuild(&(*m_index)[JobIndex::Ports], containersIn(rooms, words::PortList));
}

void JobEditor::populateActivePortMap()
{
    rebuild(&(*m_index)[JobIndex::ActivePorts], {getToActivePortList()});
}

void JobEditor::populateVerticalRunMap()
{
    const Elements rooms = roomsOf(reachableChildren(getElement(words::FloorList)));
    rebuild(&(*m_index)[JobIndex::VerticalRuns], containersIn(rooms, words::VerticalRunList));
}

void JobEditor::populatePointMap()
{
    const Elements floors = reachableChildren(getElement(words::FloorList));
    rebuild(&(*m_index)[JobIndex::Points], containersIn(floors, words::PointList));
}

void JobEditor::populateFloorFreeTextMap()
{
    const Elements floors = reachableChildren(getElement(words::FloorList));
    rebuild(&(*m_index)[JobIndex::FloorFreeTexts], containersIn(floors, words::FreeTextList));
}

// Existence

bool JobEditor::cableExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Cables], text, byTag);
}

bool JobEditor::connectionExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Connections], text, byTag);
}

bool JobEditor::floorExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Floors], text, byTag);
}

bool JobEditor::sheetExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Sheets], text, byTag);
}

bool JobEditor::roomExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Rooms], text, byTag);
}

bool JobEditor::portExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Ports], text, byTag);
}

bool JobEditor::vertRunExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::VerticalRuns], text, byTag);
}

bool JobEditor::portOrVertRunExists(const QString &text, bool byTag) const
{
    return portExists(text, byTag) || vertRunExists(text, byTag);
}

bool JobEditor::deviceExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Devices], text, byTag);
}

bool JobEditor::verticeExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Vertices], text, byTag);
}

bool JobEditor::pointExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::Points], text, byTag);
}

bool JobEditor::freeTextExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::FreeTexts], text, byTag);
}

bool JobEditor::floorFreeTextExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::FloorFreeTexts], text, byTag);
}

bool JobEditor::activePortExists(const QString &text, bool byTag) const
{
    return exists((*m_index)[JobIndex::ActivePorts], text, byTag);
}

bool JobEditor::roomExistsOnFloor(const QString &room, const QString &floorTag, bool byTag) const
{
    return !(byTag ? roomElement(floorTag, room) : roomElementById(floorTag, room)).isNull();
}

// Lists and names

QStringList JobEditor::getFloorTags() const
{
    return (*m_index)[JobIndex::Floors].tags();
}

QStringList JobEditor::getSheetTags() const
{
    return (*m_index)[JobIndex::Sheets].tags();
}

QStringList JobEditor::getFloorIds() const
{
    return (*m_index)[JobIndex::Floors].ids();
}

QStringList JobEditor::getSheetIds() const
{
    return (*m_index)[JobIndex::Sheets].ids();
}

QString JobEditor::getFloorIdByTag(const QString &tag) const
{
    return (*m_index)[JobIndex::Floors].id(tag);
}

QString JobEditor::getSheetIdByTag(const QString &tag) const
{
    return (*m_index)[JobIndex::Sheets].id(tag);
}

QString JobEditor::getPortIdByTag(const QString &tag) const
{
    return (*m_index)[JobIndex::Ports].id(tag);
}

QString JobEditor::getVertRunIdByTag(const QString &tag) const
{
    return (*m_index)[JobIndex::VerticalRuns].id(tag);
}

QString JobEditor::getFloorTagById(const QString &id) const
{
    return (*m_index)[JobIndex::Floors].tagOfId(id);
}

QString JobEditor::getSheetTagById(const QString &id) const
{
    return (*m_index)[JobIndex::Sheets].tagOfId(id);
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
    return (*m_index)[JobIndex::Floors].element(tag);
}

QDomElement JobEditor::sheetElement(const QString &tag) const
{
    return (*m_index)[JobIndex::Sheets].element(tag);
}

QDomElement JobEditor::roomElement(const QString &floorTag, const QString &tag) const
{
    const QDomElement roomList = getToRoomList(floorTag);
    const ElementIndex &rooms = (*m_index)[JobIndex::Rooms];
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
