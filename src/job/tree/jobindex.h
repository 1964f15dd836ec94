#pragma once

#include "cabletable.h"
#include "documenttree.h"
#include "jobschema.h"
#include "referenceindex.h"

#include <QtCore/QMap>

#include <array>
#include <bitset>
#include <optional>

namespace cabledoc {

/// The index of a job. It finds elements without a walk through the tree. It can be rebuilt from the tree at any time.
/// JobTree reports each change of the tree to it.
class JobIndex
{
public:
    JobIndex(const DocumentTree &tree, const QString &cableIdPrefix);

    /// Rebuilds everything from the tree.
    void rebuild();
    /// Rebuilds the index of one kind from the tree. The table of cables and the index of references are rebuilt when
    /// they are next needed.
    void rebuild(ElementKind kind);
    /// Takes the values that were noted when the tree was made.
    void take(ListNotes *notes) { cables().take(notes); }
    /// Forgets everything. Each part is rebuilt from the tree when it is next needed.
    void forgetAll();
    /// Releases the elements, whose tree is about to be destroyed. Tags, ids and the table of cables stay.
    void forgetElements();

    // Queries

    ElementIndex &of(ElementKind kind);
    /// Returns the index of the rooms of a floor, or null if the floor cannot be found. The ids of rooms are unique
    /// only on their floor.
    ContainerIndex *roomsOf(const QString &floorTag);
    CableTable &cables();
    /// Returns all elements that name a tag. There may be cables among them that named it earlier.
    QVector<QDomElement> elementsNaming(const QString &tag);
    /// Returns whether an element can be found by its tag and the tags of the elements that hold it. If several
    /// elements in a list have the same tag, only the first one can be found.
    bool isReachable(const QDomElement &element, ElementKind kind);

    // Changes

    /// Must be called after an element was inserted or moved.
    void inserted(const QDomElement &element, ElementKind kind);
    void moved(const QDomElement &element, ElementKind kind);
    /// Must be called before an element is removed with all elements that it holds.
    void aboutToRemove(const QDomElement &element, ElementKind kind);
    /// Returns whether the index depends on an attribute of that name.
    static bool dependsOn(const QString &attribute);
    /// Must be called before and after an attribute is written that the index depends on.
    void aboutToSet(const QDomElement &element, ElementKind kind, const QString &attribute);
    void wasSet(const QDomElement &element, ElementKind kind, const QString &attribute);
    /// Must be called after the test results of a cable have been inserted or changed.
    void testWasChanged(const QDomElement &cable);

    /// Returns whether the index equals one that is rebuilt from the tree.
    bool matchesTree() const;

private:
    ElementIndex &kept(ElementKind kind) { return m_elements[std::size_t(kind)]; }
    bool isStale(ElementKind kind) const { return m_isStale.test(std::size_t(kind)); }
    void setStale(ElementKind kind) { m_isStale.set(std::size_t(kind)); }
    void setStaleBelow(ElementKind holder);
    void rebuildNow(ElementKind kind);
    ReferenceIndex &references();
    bool opensWay(const QDomElement &element, ElementKind kind);

    const DocumentTree &m_tree;
    QString m_cableIdPrefix;
    std::array<ElementIndex, kindCount> m_elements;
    QMap<QString, ContainerIndex> m_roomsOfFloor; ///< by floor tag
    /// The kinds whose index is out of date. It is rebuilt when it is next needed, and changes do not update it until
    /// then. A kind becomes stale if only the tree can tell which of several elements with the same tag comes first.
    std::bitset<kindCount> m_isStale;
    std::optional<CableTable> m_cables;         ///< made when it is first needed
    std::optional<ReferenceIndex> m_references; ///< of all kinds except cables; made when it is first needed
};

} // namespace cabledoc
