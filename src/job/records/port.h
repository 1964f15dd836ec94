#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QStringList>

namespace cabledoc {

struct PortFields
{
    QString element; ///< tag
    QString id;      ///< name that the user sees
    double x = -1.0; ///< position on the floor plan, in plan pixels
    double y = -1.0;
    QString use;             ///< what it is for
    double iconScale = 1.0;  ///< size of its icon on the plan; 1.0 is the usual size
    double dropHeight = 0.0; ///< feet from the ceiling down to the port
    QString room;            ///< tag of its room
    QString floor;           ///< tag of its floor

    auto members() const
    {
        const auto &[tag, name, left, top, purpose, scale, drop, roomTag, floorTag] = *this;
        return std::tie(tag, name, left, top, purpose, scale, drop, roomTag, floorTag);
    }
};

} // namespace cabledoc

/// A port in a wall: where cables end. See Record for copying and comparing.
class CABLEDOC_EXPORT Port : public cabledoc::Record<cabledoc::PortFields>
{
    Q_OBJECT

public:
    Port() = default;
    explicit Port(const Fields &fields)
        : Record(fields)
    {
    }
    Port(const QString &element, const QString &id, double x, double y, const QString &use, double iconScale,
         double dropHeight, const QString &room, const QString &floor)
        : Record(Fields{element, id, x, y, use, iconScale, dropHeight, room, floor})
    {
    }

    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    double x() const { return m_fields.x; }
    void setX(double x) { m_fields.x = x; }
    double y() const { return m_fields.y; }
    void setY(double y) { m_fields.y = y; }
    const QString &use() const { return m_fields.use; }
    void setUse(const QString &use) { m_fields.use = use; }
    double iconScale() const { return m_fields.iconScale; }
    void setIconScale(double scale) { m_fields.iconScale = scale; }
    double dropHeight() const { return m_fields.dropHeight; }
    void setDropHeight(double feet) { m_fields.dropHeight = feet; }
    const QString &room() const { return m_fields.room; }
    void setRoom(const QString &roomTag) { m_fields.room = roomTag; }
    const QString &floor() const { return m_fields.floor; }
    void setFloor(const QString &floorTag) { m_fields.floor = floorTag; }
};

namespace cabledoc {

struct VertRunFields
{
    QStringList connected;    ///< tags of the cables that pass it and are connected
    QStringList disconnected; ///< tags of those that pass it and are not

    auto members() const
    {
        const auto &[on, off] = *this;
        return std::tie(on, off);
    }
};

} // namespace cabledoc

/// A vertical run: a shaft through which cables pass from floor to floor. It stands on the plan of one floor, and
/// cables may end at it as at a port.
class CABLEDOC_EXPORT VertRun : public Port
{
    Q_OBJECT

public:
    VertRun() = default;
    VertRun(const cabledoc::PortFields &place, const cabledoc::VertRunFields &cables)
        : Port(place)
        , m_cables(cables)
    {
    }
    VertRun(const VertRun &other)
        : Port(other)
        , m_cables(other.m_cables)
    {
    }
    VertRun &operator=(const VertRun &other) = default;

    const cabledoc::VertRunFields &cables() const { return m_cables; }
    const QStringList &connected() const { return m_cables.connected; }
    void setConnected(const QStringList &cableTags) { m_cables.connected = cableTags; }
    const QStringList &disconnected() const { return m_cables.disconnected; }
    void setDisconnected(const QStringList &cableTags) { m_cables.disconnected = cableTags; }

    friend bool operator==(const VertRun &a, const VertRun &b)
    {
        return a.fields().members() == b.fields().members() && a.m_cables.members() == b.m_cables.members();
    }
    friend bool operator!=(const VertRun &a, const VertRun &b) { return !(a == b); }

private:
    cabledoc::VertRunFields m_cables;
};
