#pragma once

#include "elementindex.h"
#include "referenceindex.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <array>
#include <optional>

namespace cabledoc {

/// The cables of a list in document order.
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

/// The kinds of element that have tags and ids.
enum class ElementKind {
    Cables,
    Connections,
    Sheets,
    Devices,
    Vertices,
    FreeTexts, ///< on sheets
    Floors,
    Rooms,
    Ports,
    ActivePorts,
    VerticalRuns,
    Points,
    FloorFreeTexts,
    Count,
};

/// Everything that a job document knows beside its tree. All of it can be rebuilt from the tree.
struct JobIndex
{
    ElementIndex &operator[](ElementKind kind) { return elements[std::size_t(kind)]; }
    const ElementIndex &operator[](ElementKind kind) const { return elements[std::size_t(kind)]; }

    JobIndex() { (*this)[ElementKind::Cables] = ElementIndex(3); } // "Cable001"

    /// Reads the elements of one kind from the tree.
    void rebuild(ElementKind kind, const QDomElement &root);
    /// What names what. Made when it is first asked for and kept in step from then on.
    ReferenceIndex &allReferences(const QDomElement &root);

    bool operator==(const JobIndex &other) const
    {
        return elements == other.elements && roomsOfFloor == other.roomsOfFloor && cables == other.cables
               && references == other.references;
    }

    std::array<ElementIndex, std::size_t(ElementKind::Count)> elements;
    QMap<QString, ContainerIndex> roomsOfFloor; ///< by floor tag: room ids are unique on a floor only

    /// A change of the cables drops the lists; the next question for them makes them anew, as costly as the answer.
    /// Adding or removing one cable does not cost all the others.
    std::optional<CableLists> cables;

    std::optional<ReferenceIndex> references; ///< see allReferences()
};

} // namespace cabledoc
