#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

namespace {

/// Adds a cable to one of the two lists of a vertical run, and removes it from the other one. If the name of the list
/// is empty, removes the cable from both.
void putCableIntoVertRun(JobTree *tree, const QString &cableTag, const QString &tag, const QString &list)
{
    for (const QString &attribute : {words::Connected, words::Disconnected}) {
        QStringList cables = entriesIn(tree->attribute(ElementKind::VerticalRuns, tag, attribute));
        const bool isListed = cables.contains(cableTag);
        if (isListed == (attribute == list))
            continue;
        if (isListed)
            cables.removeAll(cableTag);
        else
            cables.append(cableTag);
        tree->set(ElementKind::VerticalRuns, tag, attribute, toText(cables));
    }
}

} // namespace

// Ports

QString JobEditor::addPort(const Port &port, int mode)
{
    return d->add(portKind(), port.fields(), mode).tagName();
}

QString JobEditor::addPort(const QString &floorTag, const QString &roomTag, double x, double y, const QString &tag,
                           const QString &id, const QString &use, double iconScale, double dropHeight, int mode)
{
    return addPort(Port(tag, id, x, y, use, iconScale, dropHeight, roomTag, floorTag), mode);
}

void JobEditor::removePort(const QString &tag)
{
    d->tree.remove(ElementKind::Ports, tag);
}

void JobEditor::removePort(const Port &port)
{
    removePort(port.element());
}

Port JobEditor::getPortByTag(const QString &tag) const
{
    return Port(d->tree.read(portKind(), tag));
}

Port JobEditor::getPortById(const QString &id) const
{
    return getPortByTag(getPortTagById(id));
}

QString JobEditor::getPortIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::Ports, tag);
}

QString JobEditor::getPortTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::Ports, id);
}

QPointF JobEditor::getPortPos(const QString &tag) const
{
    const Port port = getPortByTag(tag);
    return {port.x(), port.y()};
}

QString JobEditor::getPortUse(const QString &tag) const
{
    return getPortByTag(tag).use();
}

double JobEditor::getPortIconScale(const QString &tag) const
{
    return getPortByTag(tag).iconScale();
}

double JobEditor::getPortDropHeight(const QString &tag) const
{
    return getPortByTag(tag).dropHeight();
}

QString JobEditor::getPortRoom(const QString &tag) const
{
    return getPortByTag(tag).room();
}

QString JobEditor::getPortFloor(const QString &tag) const
{
    return getPortByTag(tag).floor();
}

void JobEditor::setPortID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::Ports, tag, words::Id, id);
}

void JobEditor::setPortPos(const QString &tag, double x, double y)
{
    d->tree.set(ElementKind::Ports, tag, words::X, toText(x));
    d->tree.set(ElementKind::Ports, tag, words::Y, toText(y));
}

void JobEditor::setPortUse(const QString &tag, const QString &use)
{
    d->tree.set(ElementKind::Ports, tag, words::Use, use);
}

void JobEditor::setPortIconScale(const QString &tag, double scale)
{
    d->tree.set(ElementKind::Ports, tag, words::IconScale, toText(scale));
}

void JobEditor::setPortDropHeight(const QString &tag, double feet)
{
    d->tree.set(ElementKind::Ports, tag, words::DropHeight, toText(feet));
}

void JobEditor::setPortRoom(const QString &tag, const QString &floorTag, const QString &roomTag)
{
    d->tree.moveTo(d->tree.room(floorTag, roomTag), portKind(), tag);
}

// Vertical runs

QString JobEditor::addVertRun(const VertRun &vertRun, int mode)
{
    return d->add(vertRunKind(), {vertRun.fields(), vertRun.cables()}, mode).tagName();
}

QString JobEditor::addVertRun(const QString &floorTag, const QString &roomTag, double x, double y, const QString &tag,
                              const QString &id, const QString &use, double iconScale, double dropHeight,
                              const QStringList &connected, const QStringList &disconnected, int mode)
{
    return addVertRun(
        VertRun({tag, id, x, y, use, iconScale, dropHeight, roomTag, floorTag}, {connected, disconnected}), mode);
}

void JobEditor::removeVertRun(const QString &tag)
{
    d->tree.remove(ElementKind::VerticalRuns, tag);
}

void JobEditor::removeVertRun(const VertRun &vertRun)
{
    removeVertRun(vertRun.element());
}

VertRun JobEditor::getVertRunByTag(const QString &tag) const
{
    const VertRunElementFields fields = d->tree.read(vertRunKind(), tag);
    return {fields, fields};
}

VertRun JobEditor::getVertRunById(const QString &id) const
{
    return getVertRunByTag(getVertRunTagById(id));
}

QString JobEditor::getVertRunIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::VerticalRuns, tag);
}

QString JobEditor::getVertRunTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::VerticalRuns, id);
}

QPointF JobEditor::getVertRunPos(const QString &tag) const
{
    const VertRun vertRun = getVertRunByTag(tag);
    return {vertRun.x(), vertRun.y()};
}

QString JobEditor::getVertRunUse(const QString &tag) const
{
    return getVertRunByTag(tag).use();
}

double JobEditor::getVertRunIconScale(const QString &tag) const
{
    return getVertRunByTag(tag).iconScale();
}

double JobEditor::getVertRunDropHeight(const QString &tag) const
{
    return getVertRunByTag(tag).dropHeight();
}

QString JobEditor::getVertRunRoom(const QString &tag) const
{
    return getVertRunByTag(tag).room();
}

QString JobEditor::getVertRunFloor(const QString &tag) const
{
    return getVertRunByTag(tag).floor();
}

QStringList JobEditor::getVertRunConnected(const QString &tag) const
{
    return getVertRunByTag(tag).connected();
}

QStringList JobEditor::getVertRunDisconnected(const QString &tag) const
{
    return getVertRunByTag(tag).disconnected();
}

void JobEditor::setVertRunID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::VerticalRuns, tag, words::Id, id);
}

void JobEditor::setVertRunPos(const QString &tag, double x, double y)
{
    d->tree.set(ElementKind::VerticalRuns, tag, words::X, toText(x));
    d->tree.set(ElementKind::VerticalRuns, tag, words::Y, toText(y));
}

void JobEditor::setVertRunUse(const QString &tag, const QString &use)
{
    d->tree.set(ElementKind::VerticalRuns, tag, words::Use, use);
}

void JobEditor::setVertRunIconScale(const QString &tag, double scale)
{
    d->tree.set(ElementKind::VerticalRuns, tag, words::IconScale, toText(scale));
}

void JobEditor::setVertRunDropHeight(const QString &tag, double feet)
{
    d->tree.set(ElementKind::VerticalRuns, tag, words::DropHeight, toText(feet));
}

void JobEditor::setVertRunRoom(const QString &tag, const QString &floorTag, const QString &roomTag)
{
    d->tree.moveTo(d->tree.room(floorTag, roomTag), vertRunKind(), tag);
}

void JobEditor::setVertRunConnected(const QString &tag, const QStringList &cableTags)
{
    d->tree.set(ElementKind::VerticalRuns, tag, words::Connected, toText(cableTags));
}

void JobEditor::setVertRunDisconnected(const QString &tag, const QStringList &cableTags)
{
    d->tree.set(ElementKind::VerticalRuns, tag, words::Disconnected, toText(cableTags));
}

bool JobEditor::isCableInVertRun(const QString &cableTag, const QString &tag) const
{
    const VertRun vertRun = getVertRunByTag(tag);
    return vertRun.connected().contains(cableTag) || vertRun.disconnected().contains(cableTag);
}

void JobEditor::connectCableToVertRun(const QString &cableTag, const QString &tag)
{
    if (cableExists(cableTag, true))
        putCableIntoVertRun(&d->tree, cableTag, tag, words::Connected);
}

void JobEditor::disconnectCableFromVertRun(const QString &cableTag, const QString &tag)
{
    if (cableExists(cableTag, true))
        putCableIntoVertRun(&d->tree, cableTag, tag, words::Disconnected);
}

void JobEditor::removeCableFromVertRun(const QString &cableTag, const QString &tag)
{
    putCableIntoVertRun(&d->tree, cableTag, tag, QString());
}
