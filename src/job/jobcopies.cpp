#include "childelements.h"
#include "jobeditor_p.h"
#include "jobwords.h"

#include <set>

using namespace cabledoc;

namespace {

/// Returns the name without the number at its end. A copy gets this name with another number.
QString withoutNumber(QString name)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    while (!name.isEmpty() && isDigit(name.at(name.size() - 1)))
        name.chop(1);
    return name;
}

/// Returns the first free id of "12", "12A", ..., "12Z", "12[", "12AA", "12AB", ... The "[" is deliberate.
QString freeId(const ElementIndex &index, const QString &id)
{
    QString base = id;
    QString candidate = id;
    char letter = 'A';
    while (index.ids().contains(candidate)) {
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

/// The tags of copies by the tags of the originals.
struct Copies
{
    QMap<QString, QString> ports;
    QMap<QString, QString> vertRuns;
    QMap<QString, QString> points;
    QMap<QString, QString> cables;
    QMap<QString, QString> bundleGroups; ///< numbers of the groups

    /// Returns the end of a copied cable: the copy of the original end if there is one, otherwise the original end.
    QString end(const QString &tag) const { return ports.value(tag, vertRuns.value(tag, tag)); }
    QString passed(const QString &tag) const { return points.value(tag, end(tag)); }
};

/// Copies the elements of a list to another floor or sheet, under new names. Returns the tags of the copies by the tags
/// of the originals.
template <typename Fields>
QMap<QString, QString> copyElements(JobTree *tree, const Kind<Fields> &kind, const QString &from, const QString &to)
{
    QMap<QString, QString> copies;
    const QVector<QDomElement> elements = allChildren(tree->list(kind, {from}));
    for (const QDomElement &element : elements) {
        Fields fields = tree->read(kind, element);
        fields.*kind.holders.first() = to;
        fields.id = withoutNumber(fields.id);
        copies.insert(element.tagName(), tree->add(kind, fields, 0).tagName());
    }
    return copies;
}

/// Copies the ports or vertical runs of a room to another room. Adds the tags of the copies by the tags of the
/// originals.
template <typename Fields> void copyPlaces(JobTree *tree, const Kind<Fields> &kind, const QDomElement &room,
                                           const QString &floorTag, const QString &roomTag,
                                           QMap<QString, QString> *copies)
{
    const QVector<QDomElement> elements = allChildren(kind.listIn(room));
    for (const QDomElement &element : elements) {
        Fields fields = tree->read(kind, element);
        fields.id = freeId(tree->index().of(kind.kind), fields.id);
        // The cables of a vertical run are not copied yet.
        if constexpr (std::is_same_v<Fields, VertRunElementFields>)
            fields.connected = fields.disconnected = QStringList();
        fields.room = roomTag;
        fields.floor = floorTag;
        copies->insert(element.tagName(), tree->add(kind, fields, addmode::GivenId).tagName());
    }
}

/// Returns the tag of the room on the floor that has the id of the given room. Copies the given room if there is none.
QString copyOfRoom(JobEditor *job, const QDomElement &room, const QString &floorTag)
{
    JobTree &tree = JobEditorPrivate::of(*job).tree;
    if (room.tagName() == words::Undefined)
        return tree.undefinedRoom(tree.element(ElementKind::Floors, floorTag)).tagName();
    const QDomElement there = tree.roomById(floorTag, room.attribute(words::Id));
    if (!there.isNull())
        return there.tagName();
    RoomFields fields = tree.read(roomKind(), room);
    fields.floor = floorTag;
    return job->addRoom(Room(fields), addmode::GivenId);
}

/// Copies the rooms of a floor with their ports and vertical runs.
void copyRooms(JobEditor *job, const QString &from, const QString &to, Copies *copies)
{
    JobTree &tree = JobEditorPrivate::of(*job).tree;
    QVector<std::pair<QDomElement, QString>> rooms;
    const QVector<QDomElement> sources = allChildren(tree.list(roomKind(), {from}));
    for (const QDomElement &source : sources)
        rooms.append({source, copyOfRoom(job, source, to)});
    for (const auto &[source, roomTag] : std::as_const(rooms))
        copyPlaces(&tree, portKind(), source, to, roomTag, &copies->ports);
    for (const auto &[source, roomTag] : std::as_const(rooms))
        copyPlaces(&tree, vertRunKind(), source, to, roomTag, &copies->vertRuns);
}

/// Copies cables without their test results. A copy gets the id that is given for the id of the original, or a
/// generated one. The copies of the cables of a bundle group form a new group.
void copyCables(JobEditor *job, const QStringList &tags, const QMap<QString, QString> &ids, Copies *copies)
{
    JobTree &tree = JobEditorPrivate::of(*job).tree;
    std::set<QString> takenGroups;
    for (const QDomElement &cable : ChildElements(job->getToCableList()))
        takenGroups.insert(cable.attribute(words::BundleGroupNum));
    int freeGroup = 1;
    for (const QString &tag : tags) {
        CableFields fields = tree.read(cableKind(), tag);
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
        job->addCable(Cable(fields), givenId.isEmpty() ? 0 : addmode::GivenId);
        copies->cables.insert(tag, job->getToCableList().lastChildElement().tagName());
    }
}

} // namespace

void JobEditor::copyFloor(const QString &srcTag, const QString &dstTag, const QMap<QString, QString> &cableIds,
                          bool useCableIds)
{
    JobTree &tree = d->tree;
    if (!floorExists(srcTag, true) || !floorExists(dstTag, true))
        return;
    setDirty(true);
    tree.ensure(words::RoomList, tree.element(ElementKind::Floors, dstTag));
    const QStringList cables = getCablesByFloor(srcTag);
    Copies copies;
    copies.points = copyElements(&tree, pointKind(), srcTag, dstTag);
    copyElements(&tree, floorFreeTextKind(), srcTag, dstTag);
    copyRooms(this, srcTag, dstTag, &copies);
    copyCables(this, cables, useCableIds ? cableIds : QMap<QString, QString>(), &copies);
    for (auto vertRun = copies.vertRuns.cbegin(); vertRun != copies.vertRuns.cend(); ++vertRun) {
        setVertRunConnected(vertRun.value(), copiesOf(getVertRunConnected(vertRun.key()), copies.cables));
        setVertRunDisconnected(vertRun.value(), copiesOf(getVertRunDisconnected(vertRun.key()), copies.cables));
    }
}

void JobEditor::copySheet(const QString &srcTag, const QString &dstTag)
{
    if (!sheetExists(srcTag, true) || !sheetExists(dstTag, true))
        return;
    copyElements(&d->tree, deviceKind(), srcTag, dstTag);
    copyElements(&d->tree, verticeKind(), srcTag, dstTag);
    copyElements(&d->tree, freeTextKind(), srcTag, dstTag);
}
