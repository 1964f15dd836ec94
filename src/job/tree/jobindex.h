#pragma once

#include "documenttree.h"
#include "elementindex.h"
#include "jobschema.h"
#include "referenceindex.h"

#include <QtCore/QMap>

#include <array>
#include <bitset>
#include <optional>

namespace cabledoc {

/// The cables of a job in document order.
struct CableLists
{
    explicit CableLists(const QDomElement &cableList);

    QStringList tags;
    QStringList ids;
    QMap<QString, QStringList> tagsOfType;

    bool operator==(const CableLists &other) const
    {
        return tags == other.tags && ids == other.ids && tagsOfType == other.tagsOfType;
    }
};

/// What a job knows beside its tree, so that nothing walks the tree to find an element. All of it can be made from the
/// tree at any time. The tree tells it of each change.
class JobIndex
{
public:
    explicit JobIndex(const DocumentTree &tree);

    /// Makes everything from the tree.
    void rebuild();
    /// Makes what is known of one kind from the tree, and lets removals see anew what elements name.
    void rebuild(ElementKind kind);
    /// Makes the lists of cables from the tree, and lets removals see anew what elements name.
    void rebuildCableLists();
    /// Forgets everything. It is made from the tree with the next question.
    void forgetAll();
    /// Forgets the elements, whose tree is about to end. Tags, ids and lists stay.
    void forgetElements();

    // What is known

    ElementIndex &of(ElementKind kind);
    /// Returns the rooms of a floor, whose ids are unique on the floor only, or null if the floor cannot be found.
    ContainerIndex *roomsOf(const QString &floorTag);
    const CableLists &cables();
    /// Returns which elements name a tag.
    ReferenceIndex &references();
    /// Returns whether an element can be found by the tags of what holds it. Of elements in one list that share a tag
    /// only the first can.
    bool isReachable(const QDomElement &element, ElementKind kind);

    // What changes

    /// To be called after an element was inserted or moved.
    void inserted(const QDomElement &element, ElementKind kind);
    void moved(const QDomElement &element, ElementKind kind);
    /// To be called before an element is removed with all that it holds.
    void aboutToRemove(const QDomElement &element, ElementKind kind);
    /// To be called before and after an attribute is written.
    void aboutToSet(const QDomElement &element, const QString &attribute);
    void wasSet(const QDomElement &element, const QString &attribute);

    /// Returns whether this is what a rebuild makes of the tree.
    bool matchesTree() const;

private:
    ElementIndex &kept(ElementKind kind) { return m_elements[std::size_t(kind)]; }
    bool isStale(ElementKind kind) const { return m_isStale.test(std::size_t(kind)); }
    void setStale(ElementKind kind) { m_isStale.set(std::size_t(kind)); }
    void setStaleBelow(ElementKind holder);
    void rebuildNow(ElementKind kind);
    bool opensWay(const QDomElement &element, ElementKind kind);

    const DocumentTree &m_tree;
    std::array<ElementIndex, kindCount> m_elements;
    QMap<QString, ContainerIndex> m_roomsOfFloor; ///< by floor tag
    /// The kinds that are made anew with the next question for them, and need not be kept in step until then. Only the
    /// tree can tell which of several elements with a tag is the first.
    std::bitset<kindCount> m_isStale;
    /// A change of the cables drops the lists. The next question makes them anew, at the cost of the answer. So adding
    /// or removing one cable does not cost all the others.
    std::optional<CableLists> m_cables;
    std::optional<ReferenceIndex> m_references; ///< made with the first question
};

} // namespace cabledoc
