#include "planplaces.h"

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

// The grid of new rooms, in plan pixels.
constexpr int roomsInRow = 6;
constexpr int roomWidth = 240;
constexpr int roomHeight = 160;
constexpr int gap = 40;
// The places of new ports.
constexpr int portsInRow = 16;
constexpr int undefinedPortDistance = 24;
constexpr int undefinedPortTop = 12;

} // namespace

RoomFields placeOfRoom(int number, double top)
{
    const int row = number / roomsInRow;
    RoomFields fields;
    fields.x = gap + (number % roomsInRow) * (roomWidth + gap);
    fields.y = top + gap + row * (roomHeight + gap);
    fields.width = roomWidth;
    fields.height = roomHeight;
    fields.roomNameX = fields.x + fields.width / 2;
    fields.roomNameY = fields.y + fields.height / 2;
    return fields;
}

QPointF placeOfPort(int number, const QRectF &area)
{
    if (area.isEmpty())
        return {double(number + 1) * undefinedPortDistance, double(undefinedPortTop)};
    // The golden ratio puts each row into the widest space that the rows before it leave.
    constexpr double goldenRatio = 0.6180339887;
    const int row = number / portsInRow;
    const double across = (number % portsInRow + 0.5) / portsInRow;
    const double down = std::fmod(goldenRatio * (row + 1), 1.0);
    const auto rounded = [](double pixels) { return std::round(pixels * 100) / 100; };
    return {rounded(area.left() + across * area.width()), rounded(area.top() + down * area.height())};
}

RoomFields FreePlaces::nextRoom(int floor)
{
    if (!m_newRooms.contains(floor))
        m_newRooms.insert(floor, {bottomOf(m_job.floors().at(floor)), 0});
    NewRooms &rooms = m_newRooms[floor];
    return placeOfRoom(rooms.count++, rooms.top);
}

/// Returns the bottom edge of the lowest room of a floor.
double FreePlaces::bottomOf(const snapshot::Floor &floor) const
{
    double bottom = 0.0;
    for (int position = floor.rooms.first; position < floor.rooms.end(); ++position) {
        const snapshot::Room &room = m_job.rooms().at(position);
        bottom = std::clamp(room.y + room.height, bottom, maximumBottom);
    }
    return bottom;
}

QPointF FreePlaces::nextPort(int room)
{
    if (room < 0)
        return placeOfPort(m_newPorts[room]++, QRectF());
    const snapshot::Room &holder = m_job.rooms().at(room);
    const int number = holder.ports.count + holder.verticalRuns.count + m_newPorts[room]++;
    return placeOfPort(number, QRectF(holder.x, holder.y, holder.width, holder.height));
}

} // namespace cabledoc
