#include "jobindex.h"

#include "childelements.h"
#include "jobwords.h"

#include <QtCore/QVector>

#include <algorithm>

namespace cabledoc {

namespace {

using Elements = QVector<QDomElement>;

QDomElement holderOf(const QDomElement &element)
{
    return element.parentNode().parentNode().toElement();
}

/// Returns whether an element at the end of its list comes last of all elements of its kind in document order.
bool comesLast(QDomElement element, const ElementSchema *kind)
{
    while (kind->holder != ElementKind::None) {
        element = holderOf(element);
        kind = &schemaOf(kind->holder);
        if (!element.nextSiblingElement().isNull())
            return false;
    }
    return true;
}

/// Returns whether the index of references has elements of the kind. The table of cables has the cables.
bool isInReferences(const ElementSchema &kind)
{
    return kind.kind != ElementKind::Cables && !kind.references.isEmpty();
}

} // namespace

JobIndex::JobIndex(const DocumentTree &tree, const QString &cableIdPrefix)
    : m_tree(tree)
    , m_cableIdPrefix(cableIdPrefix)
{
    for (const ElementSchema *kind : jobSchema())
        kept(kind->kind) = ElementIndex(kind->tagPrefix);
    // The numbers in ids of cables have at least three digits, as in "Cable001".
    kept(ElementKind::Cables) = ElementIndex(words::CableTagPrefix, cableIdPrefix, 3);
}

void JobIndex::rebuild()
{
    m_references.reset();
    for (const ElementSchema *kind : jobSchema())
        rebuildNow(kind->kind);
}

void JobIndex::rebuild(ElementKind kind)
{
    m_references.reset();
    // The table of cables knows which elements the cables name.
    m_cables.reset();
    rebuildNow(kind);
}

void JobIndex::rebuildNow(ElementKind kind)
{
    m_isStale.reset(std::size_t(kind));
    Elements elements;
    for (const QDomElement &list : listsOf(schemaOf(kind), m_tree.root(), reachableChildren)) {
        for (const QDomElement &element : ChildElements(list))
            elements.append(element);
    }
    kept(kind).rebuild(elements);
    if (kind == ElementKind::Cables)
        m_cables.emplace(elements, kept(kind));
    if (kind != ElementKind::Rooms)
        return;
    m_roomsOfFloor.clear();
    for (const QDomElement &floor : reachableChildren(floorKind().listIn(m_tree.root()))) {
        ContainerIndex &rooms = m_roomsOfFloor[floor.tagName()];
        for (const QDomElement &room : ChildElements(roomKind().listIn(floor)))
            rooms.append(room);
    }
}

void JobIndex::forgetAll()
{
    m_isStale.set();
    m_cables.reset();
    m_references.reset();
}

void JobIndex::forgetElements()
{
    cables().forgetElements();
    for (const ElementSchema *kind : jobSchema())
        of(kind->kind).forgetElements();
    m_roomsOfFloor.clear();
    m_references.reset();
}

ElementIndex &JobIndex::of(ElementKind kind)
{
    if (isStale(kind))
        rebuildNow(kind);
    return kept(kind);
}

ContainerIndex *JobIndex::roomsOf(const QString &floorTag)
{
    of(ElementKind::Rooms);
    const auto rooms = m_roomsOfFloor.find(floorTag);
    return rooms == m_roomsOfFloor.end() ? nullptr : &*rooms;
}

CableTable &JobIndex::cables()
{
    if (!m_cables)
        rebuildNow(ElementKind::Cables);
    return *m_cables;
}

QVector<QDomElement> JobIndex::elementsNaming(const QString &tag)
{
    return cables().cablesNaming(tag) + references().elementsNaming(tag);
}

ReferenceIndex &JobIndex::references()
{
    if (m_references)
        return *m_references;
    m_references.emplace();
    for (const ElementSchema *kind : jobSchema()) {
        if (!isInReferences(*kind))
            continue;
        // This includes floors and rooms that cannot be reached because another one before them has their tag. They can
        // be reached when that is removed.
        for (const QDomElement &list : listsOf(*kind, m_tree.root(), allChildren)) {
            for (const QDomElement &element : ChildElements(list))
                m_references->insert(element);
        }
    }
    return *m_references;
}

bool JobIndex::isReachable(const QDomElement &element, ElementKind kind)
{
    const QString tag = element.tagName();
    const bool isFirst = of(kind).element(tag) == element
                         || (of(kind).isRepeated(tag) && element.parentNode().firstChildElement(tag) == element);
    const ElementKind holder = schemaOf(kind).holder;
    return isFirst && (holder == ElementKind::None || isReachable(holderOf(element), holder));
}

void JobIndex::inserted(const QDomElement &element, ElementKind kind)
{
    const ElementSchema &schema = schemaOf(kind);
    if (m_references && isInReferences(schema))
        m_references->insert(element);
    if (m_cables && kind == ElementKind::Cables)
        m_cables->append(element);
    if (isStale(kind) || (schema.holder != ElementKind::None && !isReachable(holderOf(element), schema.holder)))
        return;
    if (kept(kind).containsTag(element.tagName()) && !comesLast(element, &schema)) {
        setStale(kind);
        return;
    }
    kept(kind).append(element);
    if (kind == ElementKind::Rooms)
        m_roomsOfFloor[holderOf(element).tagName()].append(element);
}

void JobIndex::moved(const QDomElement &element, ElementKind kind)
{
    if (kept(kind).isRepeated(element.tagName()))
        setStale(kind);
    if (kind == ElementKind::Cables)
        m_cables.reset();
}

void JobIndex::aboutToRemove(const QDomElement &element, ElementKind kind)
{
    if (opensWay(element, kind))
        setStaleBelow(kind);
    for (const ElementSchema *held : jobSchema()) {
        if (held->holder != kind)
            continue;
        for (const QDomElement &child : ChildElements(held->listIn(element)))
            aboutToRemove(child, held->kind);
    }
    if (m_references && isInReferences(schemaOf(kind)))
        m_references->remove(element);
    if (m_cables && kind == ElementKind::Cables)
        m_cables->remove(element);
    if (isStale(kind))
        return;
    kept(kind).remove(element);
    if (kind == ElementKind::Rooms)
        m_roomsOfFloor[holderOf(element).tagName()].remove(element);
    if (kind == ElementKind::Floors)
        m_roomsOfFloor.remove(element.tagName());
}

/// Returns whether the removal of this element makes another one reachable that holds elements.
bool JobIndex::opensWay(const QDomElement &element, ElementKind kind)
{
    const bool holdsElements = std::any_of(jobSchema().begin(), jobSchema().end(),
                                           [kind](const ElementSchema *other) { return other->holder == kind; });
    return holdsElements && (isStale(kind) || kept(kind).isRepeated(element.tagName()))
           && !element.nextSiblingElement(element.tagName()).isNull();
}

/// Marks all kinds as stale whose elements are held by elements of the given kind.
void JobIndex::setStaleBelow(ElementKind holder)
{
    for (const ElementSchema *kind : jobSchema()) {
        if (kind->holder == holder) {
            setStale(kind->kind);
            setStaleBelow(kind->kind);
        }
    }
}

bool JobIndex::dependsOn(const QString &attribute)
{
    return attribute == words::Id || CableTable::dependsOn(attribute) || namingAttributes().contains(attribute);
}

void JobIndex::aboutToSet(const QDomElement &element, ElementKind kind, const QString &attribute)
{
    if (m_references && isInReferences(schemaOf(kind)) && namingAttributes().contains(attribute))
        m_references->remove(element);
    if (attribute == words::Id && kind == ElementKind::Rooms && !isStale(kind))
        m_roomsOfFloor[holderOf(element).tagName()].remove(element);
}

void JobIndex::wasSet(const QDomElement &element, ElementKind kind, const QString &attribute)
{
    if (m_references && isInReferences(schemaOf(kind)) && namingAttributes().contains(attribute))
        m_references->insert(element);
    if (m_cables && kind == ElementKind::Cables)
        m_cables->update(element, attribute);
    if (attribute != words::Id || isStale(kind))
        return;
    if (kind == ElementKind::Rooms) {
        ContainerIndex &rooms = m_roomsOfFloor[holderOf(element).tagName()];
        if (!rooms.element(element.attribute(words::Id)).isNull()) {
            // Only the tree can tell which room with that id is the first on the floor.
            setStale(kind);
            return;
        }
        rooms.append(element);
    }
    kept(kind).updateId(element);
}

void JobIndex::testWasChanged(const QDomElement &cable)
{
    if (m_cables)
        m_cables->updateStatus(cable);
}

bool JobIndex::matchesTree() const
{
    JobIndex asked = *this;
    asked.references();
    for (const ElementSchema *kind : jobSchema())
        asked.of(kind->kind);
    JobIndex rebuilt(m_tree, m_cableIdPrefix);
    rebuilt.rebuild();
    rebuilt.references();
    return asked.m_elements == rebuilt.m_elements && asked.m_roomsOfFloor == rebuilt.m_roomsOfFloor
           && asked.cables().hasAnswersOf(rebuilt.cables()) && asked.m_references == rebuilt.m_references;
}

} // namespace cabledoc
