#pragma once

#include "jobsnapshot.h"

#include <QtCore/QHash>
#include <QtCore/QPointF>
#include <QtCore/QRectF>

namespace cabledoc {

/// Returns the place of a new room: a rectangle of 240 by 160 plan pixels. The number counts the new rooms of the floor
/// from 0. They are placed six in a row, below the given height.
RoomFields placeOfRoom(int number, double top);

/// Returns the place of a port in a room. The number counts the ports and vertical runs of the room from 0. They are
/// placed in rows of sixteen, or in one line at the top of the plan if the area is empty.
QPointF placeOfPort(int number, const QRectF &area);

/// Largest bottom edge of a room that counts. Rooms of a damaged file could otherwise make the positions of new ones
/// too large for numbers.
constexpr double maximumBottom = 1e6;

/// Places for new rooms and ports of a job.
class FreePlaces
{
public:
    explicit FreePlaces(const JobSnapshot &job)
        : m_job(job)
    {
    }

    /// Returns a place for one more room on the floor at a position.
    RoomFields nextRoom(int floor);
    /// Returns a place for one more port in the room at a position. The position is -1 for a room that is not drawn.
    QPointF nextPort(int room);

private:
    struct NewRooms
    {
        double top = 0.0;
        int count = 0;
    };

    double bottomOf(const snapshot::Floor &floor) const;

    JobSnapshot m_job;
    QHash<int, NewRooms> m_newRooms; ///< of each floor
    QHash<int, int> m_newPorts;      ///< number of new ports in each room
};

} // namespace cabledoc
