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

struct FloorPlace
{
    QString tag;
    QDomElement element; ///< null for one that was just added
    double bottom = 0.0; ///< of its lowest room, in plan pixels
    int newRooms = 0;
};

struct RoomPlace
{
    QString floorTag;
    QString tag;
    QRectF area;   ///< in plan pixels; empty for one that is not drawn
    int ports = 0; ///< vertical runs included
};

/// What a job says of its cables, in the words of a schedule. Where several elements have the same names, the
/// first in the document is the one that counts; those that the job's operations cannot reach do not.
class JobSchedule
{
public:
    /// Whether the job has the lists that take up floors and cables.
    static bool isPossible(const JobEditor &job);

    explicit JobSchedule(const JobEditor &job);

    ScheduleRow row(const QDomElement &cable) const;
    /// The colour that a cable of that type gets for a text.
    QString color(const QString &text, const QString &type) const;

    QVector<QDomElement> cables;                            ///< in document order
    QMap<QString, QDomElement> cableOfId;                   ///< the same
    QMap<QString, FloorPlace> floors;                       ///< by id
    std::map<std::pair<QString, QString>, RoomPlace> rooms; ///< by the floor's id and their own
    std::map<CableEnd, QString> tagOfEnd;                   ///< of ports and vertical runs

private:
    struct FoundRoom
    {
        QDomElement element;
        CableEnd name; ///< without a port
    };

    QString storedText(const QDomElement &element, const QString &attribute) const;
    /// The room's id; empty for "Undefined".
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
