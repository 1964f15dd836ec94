#pragma once

#include "elementindex.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <array>

namespace cabledoc {

/// Everything that a job document knows beside its tree. All of it can be rebuilt from the tree.
struct JobIndex
{
    enum Kind {
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
        KindCount,
    };

    ElementIndex &operator[](Kind kind) { return elements[kind]; }
    const ElementIndex &operator[](Kind kind) const { return elements[kind]; }

    bool operator==(const JobIndex &other) const
    {
        return elements == other.elements && roomsOfFloor == other.roomsOfFloor && cableTags == other.cableTags
               && cableIds == other.cableIds && cablesOfType == other.cablesOfType;
    }

    std::array<ElementIndex, KindCount> elements;
    QHash<QString, ContainerIndex> roomsOfFloor; ///< by floor tag: room ids are unique on a floor only
    QStringList cableTags;                       ///< in document order
    QStringList cableIds;                        ///< likewise
    QMap<QString, QStringList> cablesOfType;     ///< cable tags in document order, by cable type
};

} // namespace cabledoc
