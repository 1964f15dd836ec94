#include "floorplan.h"

#include "cableways.h"
#include "drawingtext.h"
#include "freetextlines.h"
#include "jobwords.h"
#include "labelplacement.h"
#include "portrows.h"
#include "sheetpen.h"
#include "symbolsizes.h"
#include "units.h"
#include "vocabulary.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtGui/QImage>

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

// Millimetres of the drawing
constexpr double symbolSize = 3.8;
constexpr double runSize = 4.5;
constexpr double sampleSize = 3.4; // of symbols in the legend
constexpr double pointSize = 1.2;
constexpr double wallWidth = 0.35;
constexpr double labelSize = 2.0;
constexpr double roomNameSize = 2.6;
constexpr double dimensionSize = 2.0;
constexpr double margin = 25.0; // around the elements, for labels

constexpr double maximumIconScale = 3.0;

const QColor wallColor(0x26, 0x26, 0x26);
const QColor pointColor(0x40, 0x40, 0x40);
const QColor leaderColor(0x80, 0x80, 0x80);

/// Returns the shape of a point: a small diamond.
SceneArea pointShape(const QPointF &center)
{
    const double half = pointSize / 2;
    const QPolygonF corners(
        {center + QPointF(0, -half), center + QPointF(half, 0), center + QPointF(0, half), center + QPointF(-half, 0)});
    return {corners, pointColor, {pointColor, 0.0, LineStyle::Solid}};
}

/// Returns the shapes of a shaft, as plans of buildings have it: a square with its diagonals.
QVector<SceneShape> runShapes(const QRectF &area)
{
    const LineStyle style{wallColor, 0.3, LineStyle::Solid};
    return {rectangle(area, Qt::white, style), SceneLine{{area.topLeft(), area.bottomRight()}, style},
            SceneLine{{area.bottomLeft(), area.topRight()}, style}};
}

/// Builds the plan of a floor.
class FloorPlanBuilder
{
public:
    FloorPlanBuilder(const PlanContext &context, int number)
        : m_context(context)
        , m_job(context.job)
        , m_floor(context.job.floors().at(number))
        , m_ways(isShown(Layer::Cables) ? waysOnFloor(m_job, number, context.palette) : QVector<CableWay>())
    {
        m_plan.name = m_floor.id;
    }

    PlanContent build()
    {
        addPicture();
        addRooms();
        addWays();
        addPoints();
        addVerticalRuns();
        addPorts();
        addTexts();
        placeLabels();
        for (const SceneItem &item : std::as_const(m_plan.items))
            m_plan.bounds |= boundsOf(item);
        addLegend();
        addLists();
        return std::move(m_plan);
    }

private:
    bool isShown(Layer layer) const
    {
        return m_context.options.layers.isEmpty() || m_context.options.layers.contains(layer);
    }

    QPointF inMillimeters(double x, double y) const { return QPointF(x, y) * m_context.millimetersInAPixel; }

    void add(Layer layer, ElementKind kind, const QString &tag, const QString &title, const SceneShape &shape)
    {
        m_plan.items.append({layer, kind, tag, title, shape});
    }

    // Background

    void addPicture()
    {
        if (m_floor.pic.isEmpty() || !isShown(Layer::Background))
            return;
        QFile file(QDir(m_context.options.folder).filePath(m_floor.pic));
        ScenePicture picture;
        if (file.open(QIODevice::ReadOnly))
            picture.data = file.readAll();
        const QImage image = QImage::fromData(picture.data);
        if (image.isNull()) {
            m_plan.warnings.append(
                DrawingText::tr("%1: the background picture %2 cannot be read").arg(m_floor.id, m_floor.pic));
            return;
        }
        picture.area = QRectF(inMillimeters(m_floor.picturePosition.x(), m_floor.picturePosition.y()),
                              QSizeF(image.size()) * m_context.millimetersInAPixel);
        add(Layer::Background, ElementKind::Floors, m_floor.element, m_floor.id, picture);
    }

    // Rooms

    static bool hasPlace(const snapshot::Room &room)
    {
        return isPlaced(room.x, room.y) && isPlaced(room.x + room.width, room.y + room.height) && room.width > 0.0
               && room.height > 0.0;
    }

    void addRooms()
    {
        if (!isShown(Layer::Rooms))
            return;
        QVector<int> rooms;
        for (int room = m_floor.rooms.first; room < m_floor.rooms.end(); ++room) {
            if (hasPlace(m_job.rooms().at(room)))
                rooms.append(room);
            else if (m_job.rooms().at(room).id != words::Undefined)
                m_roomsWithoutPlace.append(m_job.rooms().at(room).id);
        }
        std::stable_sort(rooms.begin(), rooms.end(),
                         [this](int a, int b) { return m_job.rooms().at(a).layer < m_job.rooms().at(b).layer; });
        for (const int room : rooms)
            addRoom(m_job.rooms().at(room));
    }

    void addRoom(const snapshot::Room &room)
    {
        const QRectF area(inMillimeters(room.x, room.y),
                          QSizeF(room.width, room.height) * m_context.millimetersInAPixel);
        // A background picture is seen through the rooms.
        const QColor fill = m_floor.pic.isEmpty() ? QColor(Qt::white) : QColor();
        add(Layer::Rooms, ElementKind::Rooms, room.element, room.id,
            rectangle(area, fill, {wallColor, wallWidth, LineStyle::Solid}));
        m_walls.append({area.topLeft(), area.topRight()});
        m_walls.append({area.topRight(), area.bottomRight()});
        m_walls.append({area.bottomRight(), area.bottomLeft()});
        m_walls.append({area.bottomLeft(), area.topLeft()});
        m_rooms.append(&room);
    }

    // Cables

    void addWays()
    {
        for (const CableWay &way : m_ways) {
            const ColorGroup &group = m_context.palette.groups().at(way.group);
            m_groups.insert(way.group);
            SceneItem item{Layer::Cables, ElementKind::Cables, {}, {}, SceneLine()};
            item.title = DrawingText::tr("%1 cables").arg(way.count);
            if (way.cable >= 0) {
                item.tag = m_job.cables().at(way.cable).element;
                item.title = m_job.cables().at(way.cable).id;
            }
            item.shape = SceneLine{{inMillimeters(way.from.x(), way.from.y()), inMillimeters(way.to.x(), way.to.y())},
                                   {group.color, widthOf(way.count), group.pattern}};
            m_plan.items.append(item);
        }
    }

    /// Returns the width of a line for a number of cables. It grows slowly, so that a single cable is still seen beside
    /// hundreds.
    static double widthOf(int cables)
    {
        constexpr double single = 0.18;
        constexpr double forEachDoubling = 0.13;
        return single + forEachDoubling * std::log2(cables);
    }

    // Points, vertical runs and ports

    void addPoints()
    {
        if (!isShown(Layer::Points))
            return;
        for (int i = m_floor.points.first; i < m_floor.points.end(); ++i) {
            const snapshot::Point &point = m_job.points().at(i);
            if (!isPlaced(point.x, point.y)) {
                m_pointsWithoutPlace.append(point.id);
                continue;
            }
            const SceneArea shape = pointShape(inMillimeters(point.x, point.y));
            add(Layer::Points, ElementKind::Points, point.element, point.id, shape);
            m_obstacles.append(shape.corners.boundingRect());
            m_hasPoints = true;
        }
    }

    void addVerticalRuns()
    {
        if (!isShown(Layer::VerticalRuns))
            return;
        for (int r = m_floor.rooms.first; r < m_floor.rooms.end(); ++r) {
            const snapshot::Range runs = m_job.rooms().at(r).verticalRuns;
            for (int i = runs.first; i < runs.end(); ++i)
                addVerticalRun(m_job.verticalRuns().at(i));
        }
    }

    void addVerticalRun(const snapshot::VerticalRun &run)
    {
        if (!isPlaced(run.x, run.y)) {
            m_runsWithoutPlace.append(run.id);
            return;
        }
        const int cables = int(run.connectedCables.size() + run.disconnectedCables.size());
        const QString name = cables == 0 ? run.id : DrawingText::tr("%1 (%2 cables)").arg(run.id).arg(cables);
        const QRectF area = squareAround(inMillimeters(run.x, run.y), runSize);
        const QVector<SceneShape> shapes = runShapes(area);
        add(Layer::VerticalRuns, ElementKind::VerticalRuns, run.element, name, shapes.constFirst());
        for (const SceneShape &diagonal : shapes.mid(1))
            add(Layer::VerticalRuns, ElementKind::None, {}, {}, diagonal);
        m_obstacles.append(area);
        m_hasRuns = true;
        m_runLabels.append({name, area, labelSize, true});
    }

    void addPorts()
    {
        if (!isShown(Layer::Ports))
            return;
        QVector<int> ports;
        QVector<int> rooms;
        QVector<SymbolPlace> symbols;
        for (int r = m_floor.rooms.first; r < m_floor.rooms.end(); ++r) {
            const snapshot::Range range = m_job.rooms().at(r).ports;
            for (int i = range.first; i < range.end(); ++i) {
                const snapshot::Port &port = m_job.ports().at(i);
                if (!isPlaced(port.x, port.y)) {
                    m_portsWithoutPlace.append(fullName(port));
                    continue;
                }
                ports.append(i);
                rooms.append(r);
                const double scale = port.iconScale > 0.0 ? std::min(port.iconScale, maximumIconScale) : 1.0;
                symbols.append({inMillimeters(port.x, port.y), symbolSize * scale});
            }
        }
        shrinkCrowdedSymbols(&symbols);
        const QVector<double> distances = distancesInRow(symbols, rooms);
        QVector<bool> areCrowded;
        for (int i = 0; i < ports.size(); ++i) {
            addPort(ports.at(i), symbols.at(i));
            Label &label = m_portLabels.last();
            const std::optional<double> size = sizeBeside(label, distances.at(i));
            label.size = size.value_or(label.size);
            areCrowded.append(!size);
        }
        m_portRows = symbolRows(symbols, rooms, areCrowded);
    }

    QString fullName(const snapshot::Port &port) const
    {
        return m_job.rooms().at(port.holder).id + QLatin1Char('/') + port.id;
    }

    void addPort(int number, const SymbolPlace &place)
    {
        const snapshot::Port &port = m_job.ports().at(number);
        const QRectF area = squareAround(place.center, place.size);
        add(Layer::Ports, ElementKind::Ports, port.element,
            QStringLiteral("%1 (%2)").arg(fullName(port), Vocabulary::portUses().name(port.use)),
            SceneSymbol{SceneSymbol::PortUse, port.use, area});
        ++m_uses[Vocabulary::portUses().contains(port.use) ? port.use : QString()];
        m_obstacles.append(area);
        Label label{port.id, area, labelSize};
        const QString mark = markOf(number, &label.color);
        label.text = mark.isEmpty() ? port.id : mark + QLatin1Char(' ') + port.id;
        m_portLabels.append(label);
        m_portNames.append(mark.isEmpty() ? fullName(port) : mark + QLatin1Char(' ') + fullName(port));
    }

    /// Returns the size of a label that leaves room for the label of a neighbour at the given distance, or nothing if
    /// labels cannot stand side by side.
    std::optional<double> sizeBeside(const Label &label, double distance) const
    {
        constexpr double apart = 0.8;
        for (const double size : {labelSize, 1.7, 1.4}) {
            if (m_context.measure.width(label.text, size) + apart <= distance)
                return size;
        }
        return std::nullopt;
    }

    /// Returns the mark of the cables that end at a port, and sets their colour. The mark is empty if their colours
    /// need no marks.
    QString markOf(int port, QColor *color) const
    {
        if (m_context.options.colors != CableColors::Status)
            return {};
        QMap<int, int> groups;
        const QVector<int> cables = m_job.cablesAt({ElementKind::Ports, port});
        for (const int cable : cables)
            ++groups[m_context.palette.groupOf(cable)];
        if (groups.isEmpty())
            return {};
        const ColorGroup &group = m_context.palette.groups().at(m_context.palette.groupOfAll(groups));
        *color = group.color;
        return group.mark;
    }

    // Texts

    void addTexts()
    {
        if (!isShown(Layer::Texts))
            return;
        for (int i = m_floor.texts.first; i < m_floor.texts.end(); ++i) {
            const snapshot::FreeText &text = m_job.floorTexts().at(i);
            if (isPlaced(text.x, text.y))
                addText(text);
            else
                m_textsWithoutPlace.append(text.text);
        }
    }

    void addText(const snapshot::FreeText &text)
    {
        for (const SceneText &line : linesOf(text, inMillimeters(text.x, text.y), 1.0, m_context.measure)) {
            add(Layer::Texts, ElementKind::FloorFreeTexts, text.element, {}, line);
            m_obstacles.append(boxOf(line));
        }
    }

    // Labels

    void placeLabels()
    {
        if (!isShown(Layer::Labels))
            return;
        QRectF area;
        for (const SceneItem &item : std::as_const(m_plan.items))
            area |= boundsOf(item);
        LabelPlacement placement(area.marginsAdded({margin, margin, margin, margin}),
                                 int(m_obstacles.size() * 2 + m_ways.size()), int(m_ways.size() + m_walls.size()),
                                 m_context.measure);
        for (const QRectF &obstacle : std::as_const(m_obstacles))
            placement.addObstacle(obstacle);
        for (const QLineF &wall : std::as_const(m_walls))
            placement.addWall(wall);
        for (const CableWay &way : m_ways) {
            placement.addLine({inMillimeters(way.from.x(), way.from.y()), inMillimeters(way.to.x(), way.to.y())});
        }
        for (const snapshot::Room *room : std::as_const(m_rooms))
            placeRoomLabels(&placement, *room);
        for (const Label &label : std::as_const(m_runLabels))
            addLabel(placement.place(label), label.text);
        for (const QVector<int> &row : std::as_const(m_portRows))
            placePortLabels(&placement, row);
        for (const CableWay &way : m_ways)
            placeWayLabel(&placement, way);
    }

    bool isShownHere(int flags) const { return (flags & m_context.options.medium) != 0; }

    void placeRoomLabels(LabelPlacement *placement, const snapshot::Room &room)
    {
        const QPointF corner = room.roomNameX == 0.0 && room.roomNameY == 0.0
                                   ? inMillimeters(room.x, room.y) + QPointF(1.0, 1.0)
                                   : inMillimeters(room.roomNameX, room.roomNameY);
        Label label{room.id, QRectF(corner, QSizeF(1.0, 1.0)), roomNameSize, true};
        label.corner = corner;
        QPointF next = corner;
        if (isShownHere(room.showRoomName)) {
            const PlacedLabel name = placement->place(label);
            addLabel(name, label.text);
            next = boxOf(name.text).bottomLeft() + QPointF(0.0, 0.4);
        }
        if (!isShownHere(room.showDimensions) || !m_context.scale.exists())
            return;
        label.text = QStringLiteral("%1 \u00d7 %2")
                         .arg(m_context.scale.lengthText(room.width * m_context.millimetersInAPixel),
                              m_context.scale.lengthText(room.height * m_context.millimetersInAPixel));
        label.size = dimensionSize;
        label.isBold = false;
        label.color = dimColor;
        label.corner = next;
        label.anchor.moveTopLeft(next);
        addLabel(placement->place(label), label.text);
    }

    /// Labels a port, or ports that stand side by side.
    void placePortLabels(LabelPlacement *placement, const QVector<int> &row)
    {
        if (row.size() == 1) {
            addLabel(placement->place(m_portLabels.at(row.constFirst())), m_portNames.at(row.constFirst()));
            return;
        }
        QVector<Label> labels;
        QStringList ids;
        QStringList names;
        for (const int port : row) {
            labels.append(m_portLabels.at(port));
            ids.append(m_portLabels.at(port).text);
            names.append(m_portNames.at(port));
        }
        const std::vector<PlacedLabel> placed = placement->placeRow(labels, shortList(ids));
        if (int(placed.size()) == row.size()) {
            for (int i = 0; i < row.size(); ++i)
                addLabel(placed[std::size_t(i)], names.at(i));
            return;
        }
        addLabel(placed.front(), names.join(QLatin1String("; ")),
                 DrawingText::tr("%1, from left to right: %2")
                     .arg(m_portNames.at(row.constFirst()).section(QLatin1Char('/'), 0, 0), shortList(ids)));
    }

    /// Writes the number of cables on a way on its middle.
    void placeWayLabel(LabelPlacement *placement, const CableWay &way)
    {
        if (way.count < 2)
            return;
        QRectF middle(0.0, 0.0, 0.6, 0.6);
        middle.moveCenter(inMillimeters((way.from.x() + way.to.x()) / 2, (way.from.y() + way.to.y()) / 2));
        Label label{QString::number(way.count), middle, labelSize, true};
        label.color = m_context.palette.groups().at(way.group).color;
        label.isOnAnchor = true;
        addLabel(placement->place(label), DrawingText::tr("%1 cables").arg(way.count));
    }

    /// Adds a label for what has the given name. If the label is a number, the list explains it with the name or with
    /// an explanation of its own.
    void addLabel(const PlacedLabel &label, const QString &name, const QString &explanation = {})
    {
        if (label.leader) {
            add(Layer::Labels, ElementKind::None, {}, {},
                SceneLine{{label.leader->p1(), label.leader->p2()}, {leaderColor, 0.12, LineStyle::Solid}});
        }
        if (!label.text.text.isEmpty())
            add(Layer::Labels, ElementKind::None, {}, name, label.text);
        if (label.number == 0)
            return;
        if (label.number > m_numbered.size())
            m_numbered.append(Numbered{int(m_plan.items.size()) - 1, {}});
        else
            m_plan.items[m_numbered.at(label.number - 1).item].title += QLatin1String("; ") + name;
        m_numbered[label.number - 1].names.append(explanation.isEmpty() ? name : explanation);
    }

    // What stands beside the plan

    void addLegend()
    {
        QVector<ColumnEntry> &legend = m_plan.legend;
        QStringList uses = Vocabulary::portUses().words();
        uses.append(QString());
        for (const QString &use : std::as_const(uses)) {
            const QString name = use.isEmpty() ? DrawingText::tr("Unknown use") : Vocabulary::portUses().name(use);
            if (!m_uses.contains(use))
                continue;
            const SceneSymbol symbol{SceneSymbol::PortUse, use, squareAround({}, sampleSize)};
            legend.append(
                ColumnEntry::explaining({symbol}, QStringLiteral("%1 (%2)").arg(name).arg(m_uses.value(use))));
        }
        const QVector<ColorGroup> &groups = m_context.palette.groups();
        for (int i = 0; i < groups.size(); ++i) {
            const ColorGroup &group = groups.at(i);
            const SceneLine line{{{-sampleSize, 0.0}, {sampleSize, 0.0}}, {group.color, 0.5, group.pattern}};
            const QString name = group.mark.isEmpty() ? group.name : group.mark + QLatin1Char(' ') + group.name;
            if (m_groups.contains(i))
                legend.append(ColumnEntry::explaining({line}, DrawingText::tr("Cables: %1").arg(name)));
        }
        if (m_hasPoints)
            legend.append(ColumnEntry::explaining({pointShape({})}, DrawingText::tr("Point on the way of cables")));
        if (m_hasRuns)
            legend.append(
                ColumnEntry::explaining(runShapes(squareAround({}, sampleSize)), DrawingText::tr("Vertical run")));
        if (!legend.isEmpty())
            legend.prepend(ColumnEntry::heading(DrawingText::tr("Legend")));
    }

    void addLists()
    {
        if (!m_numbered.isEmpty())
            m_plan.lists.append(ColumnEntry::heading(DrawingText::tr("Numbers on the plan")));
        for (int i = 0; i < m_numbered.size(); ++i)
            m_plan.lists.append(
                ColumnEntry::listed(QString::number(i + 1), m_numbered.at(i).names.join(QLatin1String(", "))));
        addListWithoutPlace(&m_plan, DrawingText::tr("Rooms without a place"), m_roomsWithoutPlace);
        addListWithoutPlace(&m_plan, DrawingText::tr("Ports without a place"), m_portsWithoutPlace);
        addListWithoutPlace(&m_plan, DrawingText::tr("Vertical runs without a place"), m_runsWithoutPlace);
        addListWithoutPlace(&m_plan, DrawingText::tr("Points without a place"), m_pointsWithoutPlace);
        addListWithoutPlace(&m_plan, DrawingText::tr("Texts without a place"), m_textsWithoutPlace);
    }

    const PlanContext &m_context;
    const JobSnapshot &m_job;
    const snapshot::Floor &m_floor;
    const QVector<CableWay> m_ways;
    PlanContent m_plan;

    // What labels have to avoid
    QVector<QRectF> m_obstacles;
    QVector<QLineF> m_walls;

    QVector<const snapshot::Room *> m_rooms; ///< the rooms that are drawn
    QVector<Label> m_runLabels;
    QVector<Label> m_portLabels;
    QStringList m_portNames;          ///< what the labels stand for
    QVector<QVector<int>> m_portRows; ///< positions of labels in the list

    // What the legend explains
    QMap<QString, int> m_uses; ///< numbers of ports
    QSet<int> m_groups;
    bool m_hasPoints = false;
    bool m_hasRuns = false;

    /// A number on the plan.
    struct Numbered
    {
        int item;          ///< position of the label in the plan
        QStringList names; ///< what it stands for
    };
    QVector<Numbered> m_numbered;
    QStringList m_roomsWithoutPlace;
    QStringList m_portsWithoutPlace;
    QStringList m_runsWithoutPlace;
    QStringList m_pointsWithoutPlace;
    QStringList m_textsWithoutPlace;
};

} // namespace

PlanContent planOf(const PlanContext &context, int floor)
{
    return FloorPlanBuilder(context, floor).build();
}

} // namespace cabledoc
