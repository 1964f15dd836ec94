#include "childelements.h"
#include "jobeditor_p.h"
#include "messagetext.h"
#include "xmlnames.h"

using namespace cabledoc;

namespace {

QStringList namesIn(const QDomElement &container, bool byTag)
{
    return byTag ? childTags(container) : childIds(container);
}

} // namespace

// Existence

bool JobEditor::cableExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Cables, text, byTag);
}

bool JobEditor::connectionExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Connections, text, byTag);
}

bool JobEditor::floorExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Floors, text, byTag);
}

bool JobEditor::sheetExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Sheets, text, byTag);
}

bool JobEditor::roomExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Rooms, text, byTag);
}

bool JobEditor::portExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Ports, text, byTag);
}

bool JobEditor::vertRunExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::VerticalRuns, text, byTag);
}

bool JobEditor::portOrVertRunExists(const QString &text, bool byTag) const
{
    return portExists(text, byTag) || vertRunExists(text, byTag);
}

bool JobEditor::deviceExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Devices, text, byTag);
}

bool JobEditor::verticeExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Vertices, text, byTag);
}

bool JobEditor::pointExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::Points, text, byTag);
}

bool JobEditor::freeTextExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::FreeTexts, text, byTag);
}

bool JobEditor::floorFreeTextExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::FloorFreeTexts, text, byTag);
}

bool JobEditor::activePortExists(const QString &text, bool byTag) const
{
    return d->exists(ElementKind::ActivePorts, text, byTag);
}

bool JobEditor::roomExistsOnFloor(const QString &room, const QString &floorTag, bool byTag) const
{
    if (!floorExists(floorTag, true) && floorExists(room, true))
        return roomExistsOnFloor(floorTag, room, byTag);
    return !(byTag ? d->tree.room(floorTag, room) : d->tree.roomById(floorTag, room)).isNull();
}

// Lists and names

QStringList JobEditor::getFloorTags() const
{
    return d->tree.index().of(ElementKind::Floors).tags();
}

QStringList JobEditor::getSheetTags() const
{
    return d->tree.index().of(ElementKind::Sheets).tags();
}

QStringList JobEditor::getFloorIds() const
{
    return d->tree.index().of(ElementKind::Floors).idsByTag();
}

QStringList JobEditor::getSheetIds() const
{
    return d->tree.index().of(ElementKind::Sheets).idsByTag();
}

QString JobEditor::getFloorIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::Floors, tag);
}

QString JobEditor::getSheetIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::Sheets, tag);
}

QString JobEditor::getFloorTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::Floors, id);
}

QString JobEditor::getSheetTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::Sheets, id);
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
    return d->tree.list(cableKind());
}

QDomElement JobEditor::getToConnectionList() const
{
    return d->tree.list(connectionKind());
}

QDomElement JobEditor::getToActivePortList() const
{
    return d->tree.list(activePortKind());
}

QDomElement JobEditor::getToRoomList(const QString &floorTag) const
{
    return d->tree.list(roomKind(), {floorTag});
}

QDomElement JobEditor::getToPortList(const QString &floorTag, const QString &roomTag) const
{
    return d->tree.list(portKind(), {roomTag, floorTag});
}

QDomElement JobEditor::getToVertRunList(const QString &floorTag, const QString &roomTag) const
{
    return d->tree.list(vertRunKind(), {roomTag, floorTag});
}

QDomElement JobEditor::getToPointList(const QString &floorTag) const
{
    return d->tree.list(pointKind(), {floorTag});
}

QDomElement JobEditor::getToFloorFreeTextList(const QString &floorTag) const
{
    return d->tree.list(floorFreeTextKind(), {floorTag});
}

QDomElement JobEditor::getToDeviceList(const QString &sheetTag) const
{
    return d->tree.list(deviceKind(), {sheetTag});
}

QDomElement JobEditor::getToFreeTextList(const QString &sheetTag) const
{
    return d->tree.list(freeTextKind(), {sheetTag});
}

QDomElement JobEditor::getToVerticeList(const QString &sheetTag) const
{
    return d->tree.list(verticeKind(), {sheetTag});
}

bool JobEditorPrivate::exists(ElementKind kind, const QString &text, bool byTag) const
{
    return byTag ? tree.contains(kind, text) : tree.index().of(kind).ids().contains(text);
}

bool JobEditorPrivate::mayBeName(const QString &name)
{
    if (isXmlName(name))
        return true;
    document.error = JobEditor::tr("\"%1\" cannot be the name of an XML element").arg(excerpt(name));
    return false;
}
