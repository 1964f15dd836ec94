#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct RoomFields
{
    QString element;        ///< tag
    double x = -1.0;        ///< left edge on the floor plan, in plan pixels
    double y = -1.0;        ///< top edge, in plan pixels
    double width = -1.0;    ///< plan pixels
    double height = -1.0;   ///< plan pixels
    double roomNameX = 0.0; ///< position of the name's label, in plan pixels
    double roomNameY = 0.0;
    int showDimensions = 3; ///< whether and how; the application assigns the meaning
    int showRoomName = 3;   ///< likewise
    QString id;             ///< name that the user sees, unique on its floor
    QString floor;          ///< tag of the floor
    int layer = 3;          ///< drawing layer

    auto members() const
    {
        const auto &[tag, left, top, across, down, labelX, labelY, dimensionsMode, nameMode, name, floorTag, level] =
            *this;
        return std::tie(tag, left, top, across, down, labelX, labelY, dimensionsMode, nameMode, name, floorTag, level);
    }
};

} // namespace cabledoc

/// A named rectangle on a floor plan. Its coordinates are doubles, but the file holds whole pixels. See
/// Record for copying and comparing.
class CABLEDOC_EXPORT Room : public cabledoc::Record<cabledoc::RoomFields>
{
    Q_OBJECT

public:
    /// No tag, name and floor; position and size -1.0, label at 0.0, display flags and layer 3.
    Room() = default;
    explicit Room(const Fields &fields)
        : Record(fields)
    {
    }
    Room(const QString &element, double x, double y, double width, double height, const QString &id,
         const QString &floor, double roomNameX, double roomNameY, int showDimensions, int showRoomName, int layer)
        : Record(
            Fields{element, x, y, width, height, roomNameX, roomNameY, showDimensions, showRoomName, id, floor, layer})
    {
    }

    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
    double x() const { return m_fields.x; }
    void setX(double x) { m_fields.x = x; }
    double y() const { return m_fields.y; }
    void setY(double y) { m_fields.y = y; }
    double width() const { return m_fields.width; }
    void setWidth(double width) { m_fields.width = width; }
    double height() const { return m_fields.height; }
    void setHeight(double height) { m_fields.height = height; }
    double roomNameX() const { return m_fields.roomNameX; }
    void setRoomNameX(double x) { m_fields.roomNameX = x; }
    double roomNameY() const { return m_fields.roomNameY; }
    void setRoomNameY(double y) { m_fields.roomNameY = y; }
    int showDimensions() const { return m_fields.showDimensions; }
    void setShowDimensions(int show) { m_fields.showDimensions = show; }
    int showRoomName() const { return m_fields.showRoomName; }
    void setShowRoomName(int show) { m_fields.showRoomName = show; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &floor() const { return m_fields.floor; }
    void setFloor(const QString &floorTag) { m_fields.floor = floorTag; }
    int layer() const { return m_fields.layer; }
    void setLayer(int layer) { m_fields.layer = layer; }
};
