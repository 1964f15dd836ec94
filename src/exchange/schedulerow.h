#pragma once

#include <QtCore/QString>

#include <array>
#include <tuple>

namespace cabledoc {

/// The columns of a schedule, in the order in which they are written.
namespace column {
enum Column : std::size_t {
    Id,
    Type,
    Use,
    FromFloor,
    FromRoom,
    FromPort,
    ToFloor,
    ToRoom,
    ToPort,
    Bundle,
    BundleNumber,
    BundleGroup,
    Color,
    Count,
};
} // namespace column

/// A column of a schedule.
struct ColumnName
{
    const char *name;
    /// Whether the column is required.
    bool isNeeded;
};

inline constexpr std::array<ColumnName, column::Count> columnNames{{{"id", true},
                                                                    {"type", false},
                                                                    {"use", false},
                                                                    {"from_floor", true},
                                                                    {"from_room", true},
                                                                    {"from_port", true},
                                                                    {"to_floor", true},
                                                                    {"to_room", true},
                                                                    {"to_port", true},
                                                                    {"bundle", false},
                                                                    {"bundle_number", false},
                                                                    {"bundle_group", false},
                                                                    {"color", false}}};

/// The fields of a cable in a schedule, by column.
using ScheduleRow = std::array<QString, column::Count>;

/// A row of a schedule and its number in the file.
struct NumberedRow
{
    int number = 0;
    ScheduleRow texts;
};

/// The ids of the floor, room and port at which a cable ends. The room is empty for "Undefined". All three are empty if
/// the cable does not end anywhere.
struct CableEnd
{
    QString floor;
    QString room;
    QString port;

    friend bool operator<(const CableEnd &a, const CableEnd &b)
    {
        return std::tie(a.port, a.room, a.floor) < std::tie(b.port, b.room, b.floor);
    }
    friend bool operator==(const CableEnd &a, const CableEnd &b)
    {
        return std::tie(a.port, a.room, a.floor) == std::tie(b.port, b.room, b.floor);
    }
};

/// Returns the end that begins in the given column.
inline CableEnd endIn(const ScheduleRow &row, std::size_t floorColumn)
{
    return {row[floorColumn], row[floorColumn + 1], row[floorColumn + 2]};
}

} // namespace cabledoc
