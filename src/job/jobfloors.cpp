#include "jobeditor.h"

#include "addmode.h"
#include "childelements.h"
#include "jobattributes.h"
#include "jobindex.h"
#include "jobwords.h"

#include <algorithm>

using namespace cabledoc;

QString JobEditor::addFloor(const QString &tag, const QString &id, double ceilingHeight, const QString &pic, int mode)
{
    const QString badFloor = QStringLiteral("Bad Floor");
    if (addmode::keepsTag(mode) && !mayBeName(tag))
        return badFloor;
    const QDomElement floorList = getElement(words::FloorList);
    if (floorList.isNull())
        return badFloor;

    ElementIndex &floors = (*m_index)[ElementKind::Floors];
    const QString prefix = words::FloorTagPrefix;
    const QString floorTag =
        addmode::keepsTag(mode) ? tag : prefix + QString::number(floors.firstFreeTagNumber(prefix, 1));
    const QString floorId = addmode::keepsId(mode) ? id : id + QString::number(floors.firstFreeIdNumber(id, 1));

    const QDomElement floor = appendElement(floorTag, floorList);
    floorAttributes().write(floor, {floorId, floorTag, pic, ceilingHeight});
    // A floor gets no "FreeText_List" and no "Point_List" until something is put there.
    const QDomElement roomList = appendElement(words::RoomList, floor);
    floors.append(floor);
    undefinedRoomElement(roomList);
    setDirty(true);
    return floorTag;
}

QString JobEditor::addFloor(const Floor &floor, int mode)
{
    return addFloor(floor.element(), floor.id(), floor.ceilingHeight(), floor.pic(), mode);
}

void JobEditor::removeFloor(const QString &tag)
{
    const QDomElement floor = floorElement(tag);
    if (floor.isNull())
        return;
    const QDomElement roomList = floor.firstChildElement(words::RoomList);
    if (m_index->references) {
        for (const QDomElement &room : ChildElements(roomList)) {
            for (const QDomElement &vertRun : ChildElements(room.firstChildElement(words::VerticalRunList)))
                m_index->references->remove(vertRun);
        }
    }
    (*m_index)[ElementKind::Floors].remove(floor);
    removeElement(floor);
    for (const ElementKind kind : {ElementKind::Rooms, ElementKind::Ports, ElementKind::ActivePorts,
                                   ElementKind::VerticalRuns, ElementKind::Points, ElementKind::FloorFreeTexts})
        rebuildIndex(kind);
    for (const QDomElement &room : ChildElements(roomList)) {
        dropReferencesToAll(ElementKind::Ports, room.firstChildElement(words::PortList));
        dropReferencesToAll(ElementKind::VerticalRuns, room.firstChildElement(words::VerticalRunList));
    }
    dropReferencesToAll(ElementKind::Points, floor.firstChildElement(words::PointList));
}

void JobEditor::removeFloor(const Floor &floor)
{
    removeFloor(floor.element());
}

Floor JobEditor::getFloor(const QString &tag)
{
    const QDomElement element = floorElement(tag);
    if (element.isNull())
        return Floor();
    // Reading brings floors of older files up to date, on purpose.
    if (floorAttributes().complete(element))
        setDirty(true);
    FloorFields fields = floorAttributes().read(element);
    fields.element = tag;
    return Floor(fields);
}

void JobEditor::setFloorId(const QString &tag, const QString &id)
{
    renameElementOf(ElementKind::Floors, tag, id);
}

void JobEditor::setAllFloorIds(const QMap<QString, QString> &idsByTag)
{
    for (auto floor = idsByTag.cbegin(); floor != idsByTag.cend(); ++floor)
        setFloorId(floor.key(), floor.value());
}

double JobEditor::getFloorCeilingHeight(const QString &tag)
{
    const QString text = completedFloorAttribute(tag, words::CeilingHeight);
    return text.isNull() ? FloorFields().ceilingHeight : text.toDouble();
}

void JobEditor::setFloorCeilingHeight(const QString &tag, double height)
{
    writeFloorAttribute(tag, words::CeilingHeight, toText(height));
}

QString JobEditor::getFloorBackgroundPic(const QString &tag) const
{
    return getChildAttr(words::Picture, floorElement(tag));
}

void JobEditor::setFloorBackgroundPic(const QString &tag, const QString &pic, int x, int y)
{
    writeFloorAttribute(tag, words::Picture, pic);
    writeFloorAttribute(tag, words::PictureX, toText(x));
    // Required: the vertical origin keeps the value that it was first given.
    if (!floorElement(tag).hasAttribute(words::PictureY))
        writeFloorAttribute(tag, words::PictureY, toText(y));
}

QPoint JobEditor::getFloorBackgroundOrigin(const QString &tag)
{
    return {completedFloorAttribute(tag, words::PictureX).toInt(),
            completedFloorAttribute(tag, words::PictureY).toInt()};
}

QString JobEditor::getBackgroundOption(const QString &tag)
{
    return completedFloorAttribute(tag, words::BackgroundOption);
}

void JobEditor::setBackgroundOption(const QString &tag, const QString &option)
{
    writeFloorAttribute(tag, words::BackgroundOption, option);
}

/// The attribute's text, which a floor that lacks it gets; null for an unknown floor.
QString JobEditor::completedFloorAttribute(const QString &tag, const QString &attribute)
{
    const QDomElement floor = floorElement(tag);
    if (floor.isNull())
        return QString();
    if (!floor.hasAttribute(attribute))
        writeFloorAttribute(tag, attribute, floorAttributes().defaultText(attribute));
    return floor.attribute(attribute);
}

void JobEditor::writeFloorAttribute(const QString &tag, const QString &attribute, const QString &value)
{
    writeAttribute(floorElement(tag), attribute, value);
}

QString JobEditor::getFloorNumber(const QString &tag)
{
    // Sheets have no such case.
    if (tag.isEmpty())
        return QStringLiteral("1");
    return getSheetNumber(tag);
}

QStringList JobEditor::getFloorsInBetween(const QString &tagA, const QString &tagB) const
{
    const auto [low, high] = std::minmax({getFloorNumber(tagA).toInt(), getFloorNumber(tagB).toInt()});
    QStringList between;
    const QStringList tags = getFloorTags();
    for (const QString &tag : tags) {
        const int number = getFloorNumber(tag).toInt();
        if (low < number && number < high)
            between.append(tag);
    }
    return between;
}
