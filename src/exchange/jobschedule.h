#pragma once

#include "schedulerow.h"

#include <QtCore/QMap>
#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <map>
#include <utility>

class JobEditor;

namespace cabledoc {

/// A floor of the job.
struct FloorPlace
{
    QString tag;
    /// The floor's element, or a null element if the import has just added the floor.
    QDomElement element;
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
    /// Returns whether the job has lists of floors and of cables.
    static bool hasLists(const JobEditor &job);

    explicit JobSchedule(const JobEditor &job);

    /// Returns the row of a cable.
    ScheduleRow row(const QDomElement &cable) const;
    /// Returns the colour of a cable with the given text as its colour and the given type.
    QString color(const QString &text, const QString &type) const;

    /// Cables in document order.
    QVector<QDomElement> cables;
    /// Cables by their ids.
    QMap<QString, QDomElement> cableOfId;
    /// Floors by their ids.
    QMap<QString, FloorPlace> floors;
    /// Rooms by the id of the floor and their own id.
    std::map<std::pair<QString, QString>, RoomPlace> rooms;
    /// Tags of ports and vertical runs by their ends.
    std::map<CableEnd, QString> tagOfEnd;

private:
    struct FoundRoom
    {
        QDomElement element;
        /// Name of the room as an end without a port.
        CableEnd name;
    };

    QString storedText(const QDomElement &element, const QString &attribute) const;
    /// Returns the id of a room, or an empty string for "Undefined".
    QString roomName(const QDomElement &room) const;
    void findRooms();
    void findRoomsOf(const QDomElement &floor);
    void findEnds(const QString &listName);
    void addEnd(const QString &tag, const CableEnd &end);
    void findCables();

    const JobEditor &m_job;
    QVector<FoundRoom> m_rooms;
    QMap<QString, CableEnd> m_endOfTag;
    QMap<QString, QString> m_colorOfType;
};

} // namespace cabledoc
