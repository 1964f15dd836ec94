#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QStringList>

namespace cabledoc {

/// The fields of a Port, which a VertRun has too.
struct PortFields
{
    /// Tag of the port or vertical run.
    QString element;
    /// Name that the user sees.
    QString id;
    /// Horizontal position on the floor plan, in plan pixels.
    double x = -1.0;
    /// Vertical position on the floor plan, in plan pixels.
    double y = -1.0;
    /// What it is used for, usually a word of cabledoc::Vocabulary::portUses().
    QString use;
    /// Size of the icon on the plan, where 1.0 is the usual size.
    double iconScale = 1.0;
    /// Height in feet from the ceiling down to the port or vertical run.
    double dropHeight = 0.0;
    /// Tag of the room.
    QString room;
    /// Tag of the floor.
    QString floor;
};

/// Returns all fields. Records are compared by them.
inline auto members(const PortFields &fields)
{
    const auto &[element, id, x, y, use, iconScale, dropHeight, room, floor] = fields;
    return std::tie(element, id, x, y, use, iconScale, dropHeight, room, floor);
}

} // namespace cabledoc

/// A port in a wall, at which cables end. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT Port : public cabledoc::Record<cabledoc::PortFields>
{
    Q_OBJECT

public:
    /// Creates a port without names, a use, a room or a floor. Its position is (-1.0, -1.0), its icon scale is 1.0, its
    /// drop height is 0.0.
    Port() = default;
    /// Creates a port with the given fields.
    explicit Port(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a port from its parts.
    Port(const QString &element, const QString &id, double x, double y, const QString &use, double iconScale,
         double dropHeight, const QString &room, const QString &floor)
        : Record(Fields{element, id, x, y, use, iconScale, dropHeight, room, floor})
    {
    }

    /// Returns the tag of the port.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the port.
    void setElement(const QString &tag) { m_fields.element = tag; }
    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the horizontal position on the floor plan, in plan pixels.
    double x() const { return m_fields.x; }
    /// Sets the horizontal position on the floor plan, in plan pixels.
    void setX(double x) { m_fields.x = x; }
    /// Returns the vertical position on the floor plan, in plan pixels.
    double y() const { return m_fields.y; }
    /// Sets the vertical position on the floor plan, in plan pixels.
    void setY(double y) { m_fields.y = y; }
    /// Returns what the port is used for.
    const QString &use() const { return m_fields.use; }
    /// Sets what the port is used for, usually a word of cabledoc::Vocabulary::portUses().
    void setUse(const QString &use) { m_fields.use = use; }
    /// Returns the size of the icon on the plan, where 1.0 is the usual size.
    double iconScale() const { return m_fields.iconScale; }
    /// Sets the size of the icon on the plan, where 1.0 is the usual size.
    void setIconScale(double scale) { m_fields.iconScale = scale; }
    /// Returns the height in feet from the ceiling down to the port.
    double dropHeight() const { return m_fields.dropHeight; }
    /// Sets the height in feet from the ceiling down to the port.
    void setDropHeight(double feet) { m_fields.dropHeight = feet; }
    /// Returns the tag of the room.
    const QString &room() const { return m_fields.room; }
    /// Sets the tag of the room.
    void setRoom(const QString &roomTag) { m_fields.room = roomTag; }
    /// Returns the tag of the floor.
    const QString &floor() const { return m_fields.floor; }
    /// Sets the tag of the floor.
    void setFloor(const QString &floorTag) { m_fields.floor = floorTag; }
};

namespace cabledoc {

/// The fields that a VertRun has beyond those of a Port. A cable that passes the vertical run is in one of the two
/// lists.
struct VertRunFields
{
    /// Tags of the cables that pass the vertical run and are connected.
    QStringList connected;
    /// Tags of the cables that pass the vertical run and are not connected.
    QStringList disconnected;
};

/// Returns all fields. Records are compared by them.
inline auto members(const VertRunFields &fields)
{
    const auto &[connected, disconnected] = fields;
    return std::tie(connected, disconnected);
}

/// All fields of a VertRun.
struct VertRunElementFields : PortFields, VertRunFields
{
};

/// Returns all fields.
inline auto members(const VertRunElementFields &fields)
{
    return std::tuple_cat(members(static_cast<const PortFields &>(fields)),
                          members(static_cast<const VertRunFields &>(fields)));
}

} // namespace cabledoc

/// A vertical run: a shaft through which cables pass from floor to floor. It is drawn on the plan of one floor, and
/// cables can end at it as they do at a port.
class CABLEDOC_EXPORT VertRun : public Port
{
    Q_OBJECT

public:
    /// Creates a vertical run with the default values of a Port and without cables.
    VertRun() = default;
    /// Creates a vertical run with the given fields.
    VertRun(const cabledoc::PortFields &place, const cabledoc::VertRunFields &cables)
        : Port(place)
        , m_cables(cables)
    {
    }
    /// Creates a vertical run with the fields of other. The parent, the object name and the connections of other are
    /// not copied.
    VertRun(const VertRun &other)
        : Port(other)
        , m_cables(other.m_cables)
    {
    }
    /// Copies the fields of other. The parent, the object name and the connections of this object stay as they are.
    VertRun &operator=(const VertRun &other) = default;

    /// Returns the fields that a vertical run has beyond those of a port.
    const cabledoc::VertRunFields &cables() const { return m_cables; }
    /// Returns the tags of the cables that pass the vertical run and are connected.
    const QStringList &connected() const { return m_cables.connected; }
    /// Sets the tags of the cables that pass the vertical run and are connected.
    void setConnected(const QStringList &cableTags) { m_cables.connected = cableTags; }
    /// Returns the tags of the cables that pass the vertical run and are not connected.
    const QStringList &disconnected() const { return m_cables.disconnected; }
    /// Sets the tags of the cables that pass the vertical run and are not connected.
    void setDisconnected(const QStringList &cableTags) { m_cables.disconnected = cableTags; }

    /// Returns true if all fields of both vertical runs are equal, including their lists of cables.
    friend bool operator==(const VertRun &a, const VertRun &b)
    {
        return members(a.fields()) == members(b.fields()) && members(a.m_cables) == members(b.m_cables);
    }
    /// Returns true if at least one field of the vertical runs differs.
    friend bool operator!=(const VertRun &a, const VertRun &b) { return !(a == b); }

private:
    cabledoc::VertRunFields m_cables;
};
