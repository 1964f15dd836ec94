#pragma once

#include "jobsnapshot.h"
#include "schedulerow.h"

#include <QtCore/QMap>
#include <QtCore/QRectF>
#include <QtCore/QVector>

#include <array>
#include <map>
#include <set>
#include <utility>

namespace cabledoc {

/// A floor of the job.
struct FloorPlace
{
    QString tag;
    /// Bottom edge of the lowest room, in plan pixels.
    double bottom = 0.0;
    int newRooms = 0;
};

/// A room of the job.
struct RoomPlace
{
    QString floorTag;
    QString tag;
    /// Area in plan pixels, or empty if the room is not drawn.
    QRectF area;
    /// Number of ports and vertical runs.
    int ports = 0;
};

/// The cables of a job in the form of a schedule. If several elements have the same names, the first one in the
/// document counts. Elements that the operations of the job cannot reach do not count.
class JobSchedule
{
public:
    /// The flag tells how the job will be saved, see BKXMLEditor::setCharacterReferences().
    JobSchedule(const JobSnapshot &job, bool characterReferences);

    /// Returns the row of the cable at a position in the job.
    ScheduleRow row(int cable) const;
    /// Returns the colour of a cable with the given text as its colour and the given type.
    QString color(const QString &text, const QString &type) const;
    /// Returns the tag of the cable at a position in the job.
    const QString &tagOf(int cable) const { return m_job.cables().at(cable).element; }
    /// Returns where the cable at a position in the job begins and ends.
    std::array<CableEnd, 2> endsOf(int cable) const;
    /// Returns the number of all cables in the job.
    int cableCount() const { return int(m_job.cables().size()); }
    /// Returns whether the job has a test definition with the given name.
    bool hasDefinition(const QString &type) const { return m_job.definitionOfName(type) >= 0; }
    /// Returns the uses of all cables and ports.
    std::set<QString> uses() const;

    /// Positions of cables in document order.
    QVector<int> cables;
    /// Positions of cables by their ids.
    QMap<QString, int> cableOfId;
    /// Floors by their ids.
    QMap<QString, FloorPlace> floors;
    /// Rooms by the id of the floor and their own id.
    std::map<std::pair<QString, QString>, RoomPlace> rooms;
    /// Tags of ports and vertical runs by their ends.
    std::map<CableEnd, QString> tagOfEnd;

private:
    QString storedText(const QString &text) const;
    QString roomName(const snapshot::Room &room) const;
    void findRooms();
    void findRoomsOf(const snapshot::Floor &floor);
    template <typename Elements> QVector<CableEnd> namesOf(const Elements &elements, ElementKind kind);
    CableEnd endAt(const snapshot::Target &target) const;
    void findCables();

    JobSnapshot m_job;
    bool m_characterReferences;
    QVector<CableEnd> m_nameOfRoom; ///< the name of each room as an end without a port
    QVector<CableEnd> m_endOfPort;
    QVector<CableEnd> m_endOfRun;
};

} // namespace cabledoc
