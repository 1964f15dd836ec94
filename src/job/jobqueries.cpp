#include "jobeditor.h"

#include "childelements.h"
#include "jobindex.h"
#include "jobwords.h"
#include "messagetext.h"
#include "xmlnames.h"

using namespace cabledoc;

namespace {

QStringList namesIn(const QDomElement &container, bool byTag)
{
    return byTag ? childTags(container) : childIds(container);
}

bool exists(const ElementIndex &index, const QString &text, bool byTag)
{
    return byTag ? index.containsTag(text) : index.containsId(text);
}

} // namespace

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
    if (!floorExists(floorTag, true) && floorExists(room, true))
        return roomExistsOnFloor(floorTag, room, byTag);
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
    m_error = tr("\"%1\" cannot be the name of an XML element").arg(excerpt(tag));
    return false;
}
