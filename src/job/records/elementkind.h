#pragma once

namespace cabledoc {

/// The kinds of elements of a job that have tags and ids.
enum class ElementKind {
    Cables,         ///< cables
    Connections,    ///< connections between network devices
    Sheets,         ///< sheets with network devices
    Devices,        ///< network devices on sheets
    Vertices,       ///< bends of connections, on sheets
    FreeTexts,      ///< texts on sheets
    Floors,         ///< floors
    Rooms,          ///< rooms on floors
    Ports,          ///< ports in rooms
    ActivePorts,    ///< tests of ports in the working network
    VerticalRuns,   ///< vertical runs in rooms
    Points,         ///< points on floors
    FloorFreeTexts, ///< texts on floors
    Count,          ///< the number of kinds
    None = Count,   ///< no kind
};

} // namespace cabledoc
