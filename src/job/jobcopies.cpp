#include "jobelements.h"

#include "childelements.h"

using namespace cabledoc;

namespace {

/// The name without the number at its end: copies get the same name with another number.
QString withoutNumber(QString name)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    while (!name.isEmpty() && isDigit(name.at(name.size() - 1)))
        name.chop(1);
    return name;
}

/// The first of "12", "12A", ..., "12Z", "12[", "12AA", "12AB", ... that is free. That the row goes on to "["
/// is deliberate.
QString freeId(const ElementIndex &index, const QString &id)
{
    QString base = id;
    QString candidate = id;
    char letter = 'A';
    while (index.containsId(candidate)) {
        candidate = base + QLatin1Char(letter);
        if (++letter > '[') {
            letter = 'A';
            base += QLatin1Char('A');
        }
    }
    return candidate;
}

QStringList copiesOf(const QStringList &tags, const QMap<QString, QString> &copies)
{
    QStringList list;
    for (const QString &tag : tags) {
        if (copies.contains(tag))
            list.append(copies.value(tag));
    }
    return list;
}

} // namespace

/// The tags of what was copied, and those of the copies.
struct JobEditor::Copies
{
    QMap<QString, QString> ports;
    QMap<QString, QString> vertRuns;
    QMap<QString, QString> points;
    QMap<QString, QString> cables;
    QMap<QString, QString> bundleGroups; ///< their numbers

    /// What a copied cable names: the copy where there is one, otherwise the same as before.
    QString end(const QString &tag) const { return ports.value(tag, vertRuns.value(tag, tag)); }
    QString passed(const QString &tag) const { return points.value(tag, end(tag)); }
};

void JobEditor::copyFloor(const QString &srcTag, const QString &dstTag, const QMap<QString, QString> &cableIds,
                          bool useCableIds)
{
    if (floorElement(srcTag).isNull() || floorElement(dstTag).isNull())
        return;
    // Also for what is created on the way: the list of rooms, the room "Undefined".
    setDirty(true);
    ensureElement(words::RoomList, floorElement(dstTag));
    Copies copies;
    const QStringList cables = getCablesByFloor(srcTag);
    copyPoints(getToPointList(srcTag), dstTag, &copies);
    copyTexts(getToFloorFreeTextList(srcTag), dstTag, &JobEditor::addFloorFreeText);
    copyRooms(getToRoomList(srcTag), dstTag, &copies);
    copyCables(cables, useCableIds ? cableIds : QMap<QString, QString>(), &copies);
    for (auto vertRun = copies.vertRuns.cbegin(); vertRun != copies.vertRuns.cend(); ++vertRun) {
        setVertRunConnected(vertRun.value(), copiesOf(getVertRunConnected(vertRun.key()), copies.cables));
        setVertRunDisconnected(vertRun.value(), copiesOf(getVertRunDisconnected(vertRun.key()), copies.cables));
    }
}

void JobEditor::copySheet(const QString &srcTag, const QString &dstTag)
{
    if (sheetElement(srcTag).isNull() || sheetElement(dstTag).isNull())
        return;
    const QVector<QDomElement> devices = allChildren(getToDeviceList(srcTag));
    for (const QDomElement &element : devices) {
        Device device(readDevice(element));
        device.setSheet(dstTag);
        device.setID(withoutNumber(device.id()));
        addDevice(device, 0);
    }
    const QVector<QDomElement> vertices = allChildren(getToVerticeList(srcTag));
    for (const QDomElement &element : vertices) {
        Vertice vertice(readPoint(element));
        vertice.setParent(dstTag);
        vertice.setID(withoutNumber(vertice.id()));
        addVertice(vertice, 0);
    }
    copyTexts(getToFreeTextList(srcTag), dstTag, &JobEditor::addFreeText);
}

void JobEditor::copyPoints(const QDomElement &list, const QString &floorTag, Copies *copies)
{
    const QVector<QDomElement> points = allChildren(list);
    for (const QDomElement &element : points) {
        Point point(readPoint(element));
        point.setParent(floorTag);
        point.setID(withoutNumber(point.id()));
        copies->points.insert(element.tagName(), addPoint(point, 0));
    }
}

void JobEditor::copyTexts(const QDomElement &list, const QString &parentTag,
                          QString (JobEditor::*add)(const FreeText &, int))
{
    const QVector<QDomElement> texts = allChildren(list);
    for (const QDomElement &element : texts) {
        FreeText text(readText(element));
        text.setParent(parentTag);
        text.setID(withoutNumber(text.id()));
        (this->*add)(text, 0);
    }
}

/// The tag of the copy of a room: a room of that id that the floor has already stands for it.
QString JobEditor::copyOfRoom(const QDomElement &source, const QString &floorTag)
{
    if (source.tagName() == words::Undefined)
        return undefinedRoomElement(getToRoomList(floorTag)).tagName();
    const QDomElement there = roomElementById(floorTag, getElementId(source));
    if (!there.isNull())
        return there.tagName();
    Room room = readRoom(source);
    room.setFloor(floorTag);
    return addRoom(room, addmode::GivenId);
}

/// Copies rooms with what is in them.
void JobEditor::copyRooms(const QDomElement &roomList, const QString &floorTag, Copies *copies)
{
    QVector<std::pair<QDomElement, QString>> rooms;
    const QVector<QDomElement> sources = allChildren(roomList);
    for (const QDomElement &source : sources)
        rooms.append({source, copyOfRoom(source, floorTag)});
    for (const auto &[source, roomTag] : std::as_const(rooms)) {
        const QVector<QDomElement> ports = allChildren(source.firstChildElement(words::PortList));
        for (const QDomElement &element : ports) {
            PortFields fields = readPort(element);
            fields.id = freeId((*m_index)[ElementKind::Ports], fields.id);
            fields.room = roomTag;
            fields.floor = floorTag;
            copies->ports.insert(element.tagName(), addPort(Port(fields), addmode::GivenId));
        }
    }
    for (const auto &[source, roomTag] : std::as_const(rooms)) {
        const QVector<QDomElement> vertRuns = allChildren(source.firstChildElement(words::VerticalRunList));
        for (const QDomElement &element : vertRuns) {
            PortFields fields = readPort(element);
            fields.id = freeId((*m_index)[ElementKind::VerticalRuns], fields.id);
            fields.room = roomTag;
            fields.floor = floorTag;
            copies->vertRuns.insert(element.tagName(), addVertRun(VertRun(fields, {}), addmode::GivenId));
        }
    }
}

void JobEditor::copyCables(const QStringList &tags, const QMap<QString, QString> &ids, Copies *copies)
{
    std::set<QString> takenGroups;
    for (const QDomElement &cable : ChildElements(getToCableList()))
        takenGroups.insert(cable.attribute(words::BundleGroupNum));
    int freeGroup = 1;
    for (const QString &tag : tags) {
        CableFields fields = cableAttributes().read(cableElement(tag));
        fields.to = copies->end(fields.to);
        fields.from = copies->end(fields.from);
        for (QString &passed : fields.path)
            passed = copies->passed(passed);
        QString &group = copies->bundleGroups[fields.bundleGroupNum];
        if (group.isEmpty() && !fields.bundleGroupNum.isEmpty()) {
            while (takenGroups.count(QString::number(freeGroup)) != 0)
                ++freeGroup;
            group = QString::number(freeGroup++);
        }
        fields.bundleGroupNum = group;
        const QString givenId = ids.value(fields.id);
        fields.id = givenId;
        addCable(Cable(fields), givenId.isEmpty() ? 0 : addmode::GivenId);
        copies->cables.insert(tag, getToCableList().lastChildElement().tagName());
    }
}
