#include "jobelements.h"

using namespace cabledoc;

namespace {

const DrawnKind<PortFields> &portKind()
{
    static const DrawnKind<PortFields> kind{ElementKind::Ports, words::PortList, words::PortTagPrefix,
                                            portAttributes()};
    return kind;
}

const DrawnKind<PortFields> &vertRunKind()
{
    static const DrawnKind<PortFields> kind{ElementKind::VerticalRuns, words::VerticalRunList, words::VertRunTagPrefix,
                                            portAttributes()};
    return kind;
}

QDomElement roomOf(const QDomElement &portOrVertRun)
{
    return portOrVertRun.parentNode().parentNode().toElement();
}

} // namespace

/// What ports and vertical runs have in common.
PortFields JobEditor::readPort(const QDomElement &element) const
{
    if (element.isNull())
        return PortFields();
    PortFields fields = readElement(portKind(), element);
    const QDomElement room = roomOf(element);
    fields.room = room.tagName();
    fields.floor = room.parentNode().parentNode().nodeName();
    return fields;
}

/// Moves the element into its list in another room; nothing when one of them does not exist.
void JobEditor::moveToRoom(ElementKind kind, const QDomElement &element, const QString &listName,
                           const QString &floorTag, const QString &roomTag)
{
    const QDomElement room = roomElement(floorTag, roomTag);
    if (element.isNull() || room.isNull() || room == roomOf(element))
        return;
    ensureElement(listName, room).appendChild(element);
    // Only the document can tell which of several elements of that tag is the first now.
    if ((*m_index)[kind].isRepeated(element.tagName()))
        rebuildIndex(kind);
    setDirty(true);
}

// Ports

QString JobEditor::addPort(const Port &port, int mode)
{
    return addElement(portKind(), roomElement(port.floor(), port.room()), port.fields(), mode).tagName();
}

QString JobEditor::addPort(const QString &floorTag, const QString &roomTag, double x, double y, const QString &tag,
                           const QString &id, const QString &use, double iconScale, double dropHeight, int mode)
{
    return addPort(Port(tag, id, x, y, use, iconScale, dropHeight, roomTag, floorTag), mode);
}

void JobEditor::removePort(const QString &tag)
{
    removeElementOf(ElementKind::Ports, portElement(tag));
}

void JobEditor::removePort(const Port &port)
{
    removePort(port.element());
}

QDomElement JobEditor::portElement(const QString &tag) const
{
    return elementOf(ElementKind::Ports, tag);
}

Port JobEditor::getPortByTag(const QString &tag) const
{
    return Port(readPort(portElement(tag)));
}

Port JobEditor::getPortById(const QString &id) const
{
    return getPortByTag(getPortTagById(id));
}

QString JobEditor::getPortIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::Ports].id(tag);
}

QString JobEditor::getPortTagById(const QString &id) const
{
    return (*m_index)[ElementKind::Ports].tagOfId(id);
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
    renameElementOf(ElementKind::Ports, tag, id);
}

void JobEditor::setPortPos(const QString &tag, double x, double y)
{
    writeAttribute(portElement(tag), words::X, toText(x));
    writeAttribute(portElement(tag), words::Y, toText(y));
}

void JobEditor::setPortUse(const QString &tag, const QString &use)
{
    writeAttribute(portElement(tag), words::Use, use);
}

void JobEditor::setPortIconScale(const QString &tag, double scale)
{
    writeAttribute(portElement(tag), words::IconScale, toText(scale));
}

void JobEditor::setPortDropHeight(const QString &tag, double feet)
{
    writeAttribute(portElement(tag), words::DropHeight, toText(feet));
}

void JobEditor::setPortRoom(const QString &tag, const QString &floorTag, const QString &roomTag)
{
    moveToRoom(ElementKind::Ports, portElement(tag), words::PortList, floorTag, roomTag);
}

// Vertical runs

QString JobEditor::addVertRun(const VertRun &vertRun, int mode)
{
    const QDomElement element =
        addElement(vertRunKind(), roomElement(vertRun.floor(), vertRun.room()), vertRun.fields(), mode);
    writeAttribute(element, words::Connected, toText(vertRun.connected()));
    writeAttribute(element, words::Disconnected, toText(vertRun.disconnected()));
    return element.tagName();
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
    removeElementOf(ElementKind::VerticalRuns, vertRunElement(tag));
}

void JobEditor::removeVertRun(const VertRun &vertRun)
{
    removeVertRun(vertRun.element());
}

QDomElement JobEditor::vertRunElement(const QString &tag) const
{
    return elementOf(ElementKind::VerticalRuns, tag);
}

VertRun JobEditor::getVertRunByTag(const QString &tag) const
{
    const QDomElement element = vertRunElement(tag);
    return {readPort(element), vertRunCablesAttributes().read(element)};
}

VertRun JobEditor::getVertRunById(const QString &id) const
{
    return getVertRunByTag(getVertRunTagById(id));
}

QString JobEditor::getVertRunIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::VerticalRuns].id(tag);
}

QString JobEditor::getVertRunTagById(const QString &id) const
{
    return (*m_index)[ElementKind::VerticalRuns].tagOfId(id);
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
    renameElementOf(ElementKind::VerticalRuns, tag, id);
}

void JobEditor::setVertRunPos(const QString &tag, double x, double y)
{
    writeAttribute(vertRunElement(tag), words::X, toText(x));
    writeAttribute(vertRunElement(tag), words::Y, toText(y));
}

void JobEditor::setVertRunUse(const QString &tag, const QString &use)
{
    writeAttribute(vertRunElement(tag), words::Use, use);
}

void JobEditor::setVertRunIconScale(const QString &tag, double scale)
{
    writeAttribute(vertRunElement(tag), words::IconScale, toText(scale));
}

void JobEditor::setVertRunDropHeight(const QString &tag, double feet)
{
    writeAttribute(vertRunElement(tag), words::DropHeight, toText(feet));
}

void JobEditor::setVertRunRoom(const QString &tag, const QString &floorTag, const QString &roomTag)
{
    moveToRoom(ElementKind::VerticalRuns, vertRunElement(tag), words::VerticalRunList, floorTag, roomTag);
}

void JobEditor::setVertRunConnected(const QString &tag, const QStringList &cableTags)
{
    writeAttribute(vertRunElement(tag), words::Connected, toText(cableTags));
}

void JobEditor::setVertRunDisconnected(const QString &tag, const QStringList &cableTags)
{
    writeAttribute(vertRunElement(tag), words::Disconnected, toText(cableTags));
}

bool JobEditor::isCableInVertRun(const QString &cableTag, const QString &tag) const
{
    const VertRun vertRun = getVertRunByTag(tag);
    return vertRun.connected().contains(cableTag) || vertRun.disconnected().contains(cableTag);
}

void JobEditor::connectCableToVertRun(const QString &cableTag, const QString &tag)
{
    if (cableExists(cableTag, true))
        putCableIntoVertRun(cableTag, tag, words::Connected);
}

void JobEditor::disconnectCableFromVertRun(const QString &cableTag, const QString &tag)
{
    if (cableExists(cableTag, true))
        putCableIntoVertRun(cableTag, tag, words::Disconnected);
}

/// A cable stands in one of the two lists, or in none when the list is empty.
void JobEditor::putCableIntoVertRun(const QString &cableTag, const QString &tag, const QString &list)
{
    const QDomElement element = vertRunElement(tag);
    if (element.isNull())
        return;
    for (const QString &attribute : {words::Connected, words::Disconnected}) {
        QStringList cables;
        fromText(element.attribute(attribute), &cables);
        const bool isListed = cables.contains(cableTag);
        if (isListed == (attribute == list))
            continue;
        if (isListed)
            cables.removeAll(cableTag);
        else
            cables.append(cableTag);
        writeAttribute(element, attribute, toText(cables));
    }
}

void JobEditor::removeCableFromVertRun(const QString &cableTag, const QString &tag)
{
    putCableIntoVertRun(cableTag, tag, QString());
}
