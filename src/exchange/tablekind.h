#pragma once

#include "cabledoc_export.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

namespace cabledoc {

/// The tables of a job. A template has only test definitions and bundles.
///
/// The tables of a whole job can be imported in this order: each table only names elements of the tables before it.
enum class TableKind {
    TestDefinitions, ///< test definitions of cable types
    Bundles,         ///< bundles of cable types
    Floors,          ///< floors
    Rooms,           ///< rooms on floors
    Ports,           ///< ports in rooms
    VerticalRuns,    ///< vertical runs in rooms
    Points,          ///< points on floors
    FloorTexts,      ///< texts on floors
    Sheets,          ///< sheets with network devices
    Devices,         ///< network devices on sheets
    Bends,           ///< bends of connections, on sheets
    SheetTexts,      ///< texts on sheets
    Connections,     ///< connections between network devices
    Cables,          ///< cables
    ActivePorts,     ///< tests of ports in the working network
    Releases,        ///< releases: values with names
    Count,           ///< the number of kinds
};

/// Returns all tables in the order of TableKind.
CABLEDOC_EXPORT const QVector<TableKind> &tableKinds();
/// Returns the names of all tables in the order of TableKind, such as "vertical-runs".
CABLEDOC_EXPORT const QStringList &tableNames();
/// Returns the name of a table, such as "vertical-runs".
CABLEDOC_EXPORT const QString &tableName(TableKind kind);
/// Returns the table with the given name, or nothing if there is none.
CABLEDOC_EXPORT std::optional<TableKind> tableOfName(const QString &name);
/// Returns whether templates have the table too.
CABLEDOC_EXPORT bool isTableOfTemplates(TableKind kind);

/// The unit of positions on plans and sheets, and of heights, in a table.
enum class TableUnit {
    Pixels, ///< positions in pixels, heights in feet: as in a file
    Feet,   ///< positions in feet by the scale of the plan, heights in feet
    Metres, ///< positions in metres by the scale of the plan, heights in metres
};

} // namespace cabledoc
