#pragma once

#include "elementindex.h"
#include "referenceindex.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <array>
#include <optional>

namespace cabledoc {

/// The tags of all cables, and their ids.
struct CableNames
{
    QStringList tags;
    QStringList ids;

    bool operator==(const CableNames &other) const { return tags == other.tags && ids == other.ids; }
};

CableNames cableNamesIn(const QDomElement &cableList);
/// The tags of all cables by their type.
QMap<QString, QStringList> cablesByTypeIn(const QDomElement &cableList);

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
               && cablesOfType == other.cablesOfType && references == other.references;
    }

    std::array<ElementIndex, std::size_t(ElementKind::Count)> elements;
    QHash<QString, ContainerIndex> roomsOfFloor; ///< by floor tag: room ids are unique on a floor only

    // Lists of cables, all in document order. A change of the cables drops them; the next question for them
    // makes them anew, as costly as the answer. Adding or removing one cable does not cost all the others.
    std::optional<CableNames> cables;
    std::optional<QMap<QString, QStringList>> cablesOfType; ///< tags by cable type

    std::optional<ReferenceIndex> references; ///< see allReferences()
};

} // namespace cabledoc
