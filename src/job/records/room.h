#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a Room.
struct RoomFields
{
    /// Tag of the room.
    QString element;
    /// Left edge on the floor plan, in plan pixels.
    double x = -1.0;
    /// Top edge on the floor plan, in plan pixels.
    double y = -1.0;
    /// Width in plan pixels.
    double width = -1.0;
    /// Height in plan pixels.
    double height = -1.0;
    /// Horizontal position of the label with the name, in plan pixels.
    double roomNameX = 0.0;
    /// Vertical position of the label with the name, in plan pixels.
    double roomNameY = 0.0;
    /// Whether and how the dimensions are shown. The application assigns the meaning.
    int showDimensions = 3;
    /// Whether and how the name is shown. The application assigns the meaning.
    int showRoomName = 3;
    /// Name that the user sees, unique on the floor.
    QString id;
    /// Tag of the floor.
    QString floor;
    /// Drawing layer.
    int layer = 3;
};

/// Returns all fields. Records are compared by them.
inline auto members(const RoomFields &fields)
{
    const auto &[element, x, y, width, height, roomNameX, roomNameY, showDimensions, showRoomName, id, floor, layer] =
        fields;
    return std::tie(element, x, y, width, height, roomNameX, roomNameY, showDimensions, showRoomName, id, floor, layer);
}

} // namespace cabledoc

/// A named rectangle on a floor plan. Its coordinates are doubles, but files hold whole pixels. See cabledoc::Record
/// for how records are copied and compared.
class CABLEDOC_EXPORT Room : public cabledoc::Record<cabledoc::RoomFields>
{
    Q_OBJECT

public:
    /// Creates a room without names or a floor. Its position and size are -1.0, the label is at (0.0, 0.0), the display
    /// flags and the layer are 3.
    Room() = default;
    /// Creates a room with the given fields.
    explicit Room(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a room from its parts.
    Room(const QString &element, double x, double y, double width, double height, const QString &id,
         const QString &floor, double roomNameX, double roomNameY, int showDimensions, int showRoomName, int layer)
        : Record(
            Fields{element, x, y, width, height, roomNameX, roomNameY, showDimensions, showRoomName, id, floor, layer})
    {
    }

    /// Returns the tag of the room.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the room.
    void setElement(const QString &tag) { m_fields.element = tag; }
    /// Returns the left edge on the floor plan, in plan pixels.
    double x() const { return m_fields.x; }
    /// Sets the left edge on the floor plan, in plan pixels.
    void setX(double x) { m_fields.x = x; }
    /// Returns the top edge on the floor plan, in plan pixels.
    double y() const { return m_fields.y; }
    /// Sets the top edge on the floor plan, in plan pixels.
    void setY(double y) { m_fields.y = y; }
    /// Returns the width in plan pixels.
    double width() const { return m_fields.width; }
    /// Sets the width in plan pixels.
    void setWidth(double width) { m_fields.width = width; }
    /// Returns the height in plan pixels.
    double height() const { return m_fields.height; }
    /// Sets the height in plan pixels.
    void setHeight(double height) { m_fields.height = height; }
    /// Returns the horizontal position of the label with the name, in plan pixels.
    double roomNameX() const { return m_fields.roomNameX; }
    /// Sets the horizontal position of the label with the name, in plan pixels.
    void setRoomNameX(double x) { m_fields.roomNameX = x; }
    /// Returns the vertical position of the label with the name, in plan pixels.
    double roomNameY() const { return m_fields.roomNameY; }
    /// Sets the vertical position of the label with the name, in plan pixels.
    void setRoomNameY(double y) { m_fields.roomNameY = y; }
    /// Returns whether and how the dimensions are shown. The application assigns the meaning.
    int showDimensions() const { return m_fields.showDimensions; }
    /// Sets whether and how the dimensions are shown. The application assigns the meaning.
    void setShowDimensions(int show) { m_fields.showDimensions = show; }
    /// Returns whether and how the name is shown. The application assigns the meaning.
    int showRoomName() const { return m_fields.showRoomName; }
    /// Sets whether and how the name is shown. The application assigns the meaning.
    void setShowRoomName(int show) { m_fields.showRoomName = show; }
    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the tag of the floor.
    const QString &floor() const { return m_fields.floor; }
    /// Sets the tag of the floor.
    void setFloor(const QString &floorTag) { m_fields.floor = floorTag; }
    /// Returns the drawing layer.
    int layer() const { return m_fields.layer; }
    /// Sets the drawing layer.
    void setLayer(int layer) { m_fields.layer = layer; }
};
