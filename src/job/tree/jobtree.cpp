#include "jobtree.h"

#include "childelements.h"
#include "jobwords.h"

#include <algorithm>

namespace cabledoc {

JobTree::JobTree(const QString &cableIdPrefix)
    : DocumentTree(words::Job)
    , m_index(*this, cableIdPrefix)
{
}

void JobTree::unload()
{
    m_index.forgetElements();
    DocumentTree::setDocument(QDomDocument(words::Job));
}

void JobTree::setDocument(const QDomDocument &document)
{
    DocumentTree::setDocument(document);
    m_index.forgetAll();
}

// Finding

QDomElement JobTree::room(const QString &floorTag, const QString &tag) const
{
    const QDomElement rooms = list(roomKind(), {floorTag});
    const QDomElement room = element(ElementKind::Rooms, tag);
    if (!rooms.isNull() && room.parentNode() == rooms)
        return room;
    // The index finds only the first room with a tag, but there is a room "Undefined" on every floor, for example.
    return m_index.of(ElementKind::Rooms).isRepeated(tag) ? rooms.firstChildElement(tag) : QDomElement();
}

QDomElement JobTree::roomById(const QString &floorTag, const QString &id) const
{
    const ContainerIndex *rooms = m_index.roomsOf(floorTag);
    return rooms == nullptr ? QDomElement() : rooms->element(id);
}

QDomElement JobTree::list(const ElementSchema &kind, const QStringList &holders) const
{
    return kind.listIn(holder(kind, holders));
}

QDomElement JobTree::holder(const ElementSchema &kind, const QStringList &tags) const
{
    if (kind.holder == ElementKind::None)
        return root();
    // The tag of a room may not be unique, so the room is searched on its floor.
    return kind.holder == ElementKind::Rooms ? room(tags.at(1), tags.at(0)) : element(kind.holder, tags.at(0));
}

// Adding

/// Returns the list for a new element. Adds the list if it is missing, unless it is only created with its holder.
QDomElement JobTree::listForNew(const ElementSchema &kind, const QDomElement &holder)
{
    const QDomElement list = kind.listIn(holder);
    if (!list.isNull() || kind.listCreation == ListCreation::WithHolder)
        return list;
    QDomElement parent = holder;
    for (const QString &name : kind.list.mid(0, kind.list.size() - 1))
        parent = parent.firstChildElement(name);
    return parent.isNull() ? QDomElement() : append(kind.listName(), parent);
}

void JobTree::addLists(const QDomElement &element, ElementKind kind)
{
    for (const ElementSchema *held : jobSchema()) {
        if (held->holder == kind && held->listCreation != ListCreation::WithElement)
            ensure(held->listName(), element);
    }
}

QDomElement JobTree::undefinedRoom(const QDomElement &floor)
{
    const QDomElement rooms = ensure(roomKind().listName(), floor);
    QDomElement room = rooms.firstChildElement(words::Undefined);
    if (!room.isNull())
        return room;
    room = create(words::Undefined);
    room.setAttribute(words::Id, words::Undefined);
    addLists(room, ElementKind::Rooms);
    insert(room, rooms);
    return room;
}

// Changing

void JobTree::set(ElementKind kind, const QString &tag, const QString &name, const QString &value)
{
    const QDomElement changed = element(kind, tag);
    if (schemaOf(kind).setters == Setters::AddAttributes || changed.hasAttribute(name))
        setAttribute(changed, kind, name, value);
}

void JobTree::moveTo(const QDomElement &holder, const ElementSchema &kind, const QString &tag)
{
    const QDomElement moved = element(kind.kind, tag);
    if (!moved.isNull() && !holder.isNull() && moved.parentNode().parentNode() != holder)
        move(moved, ensure(kind.listName(), holder));
}

void JobTree::setAttribute(QDomElement element, const QString &name, const QString &value)
{
    setAttribute(element, JobIndex::dependsOn(name) ? kindOf(element) : ElementKind::None, name, value);
}

void JobTree::setAttribute(const QDomElement &element, ElementKind kind, const QString &name, const QString &value)
{
    const bool isIndexed = kind != ElementKind::None && !element.isNull() && JobIndex::dependsOn(name);
    if (isIndexed)
        m_index.aboutToSet(element, kind, name);
    DocumentTree::setAttribute(element, name, value);
    if (isIndexed)
        m_index.wasSet(element, kind, name);
    else if (name == words::Status)
        noteTest(element);
}

void JobTree::insert(const QDomElement &element, QDomNode parent)
{
    DocumentTree::insert(element, parent);
    const ElementKind kind = kindOf(element);
    if (kind != ElementKind::None)
        m_index.inserted(element, kind);
    else
        noteTest(element);
}

void JobTree::insert(const QDomElement &element, ElementKind kind, const QDomNode &parent)
{
    DocumentTree::insert(element, parent);
    m_index.inserted(element, kind);
}

void JobTree::move(const QDomNode &node, QDomNode parent)
{
    DocumentTree::move(node, parent);
    const QDomElement element = node.toElement();
    const ElementKind kind = kindOf(element);
    if (kind != ElementKind::None)
        m_index.moved(element, kind);
}

/// Updates the index if the element holds the test results of a cable.
void JobTree::noteTest(const QDomElement &element)
{
    if (element.tagName() != words::TestResults)
        return;
    const QDomElement cable = element.parentNode().toElement();
    if (kindOf(cable) == ElementKind::Cables)
        m_index.testWasChanged(cable);
}

// Removing

void JobTree::remove(const QDomElement &element)
{
    const ElementKind kind = kindOf(element);
    if (kind != ElementKind::None)
        m_index.aboutToRemove(element, kind);
    DocumentTree::remove(element);
    if (kind != ElementKind::None)
        dropReferences(element, kind);
}

/// Removes or changes the elements that name the removed element or an element that it holds.
void JobTree::dropReferences(const QDomElement &element, ElementKind kind)
{
    dropReferencesTo(element.tagName(), kind);
    for (const ElementSchema *held : jobSchema()) {
        if (held->holder != kind)
            continue;
        for (const QDomElement &child : ChildElements(held->listIn(element)))
            dropReferences(child, held->kind);
    }
}

void JobTree::dropReferencesTo(const QString &tag, ElementKind kind)
{
    const auto isThere = [&](ElementKind target) { return contains(target, tag); };
    for (const ElementSchema *naming : jobSchema()) {
        for (const Reference &reference : naming->references) {
            // If another element has the same tag, references to the tag stay.
            if (!reference.targets.contains(kind)
                || std::any_of(reference.targets.begin(), reference.targets.end(), isThere))
                continue;
            const QVector<QDomElement> elements = elementsNaming(tag, *naming, reference);
            for (const QDomElement &element : elements) {
                if (reference.whenGone == Reference::RemoveElement)
                    remove(element);
                else
                    forgetTag(tag, element, reference.attributes);
            }
        }
    }
}

/// Returns the elements of a kind that name the tag in one of the attributes of the reference.
QVector<QDomElement> JobTree::elementsNaming(const QString &tag, const ElementSchema &kind, const Reference &reference)
{
    QVector<QDomElement> elements;
    const QVector<QDomElement> all = m_index.elementsNaming(tag);
    for (const QDomElement &element : all) {
        const auto isNaming = [&](const QString &attribute) {
            return reference.tagsIn(element.attribute(attribute)).contains(tag);
        };
        if (element.parentNode().nodeName() == kind.listName()
            && std::any_of(reference.attributes.begin(), reference.attributes.end(), isNaming))
            elements.append(element);
    }
    return elements;
}

/// Removes a tag from the lists of tags in the attributes of an element.
void JobTree::forgetTag(const QString &tag, const QDomElement &element, const QStringList &attributes)
{
    for (const QString &attribute : attributes) {
        QStringList tags = entriesIn(element.attribute(attribute));
        if (tags.removeAll(tag) > 0)
            setAttribute(element, attribute, toText(tags));
    }
}

} // namespace cabledoc
