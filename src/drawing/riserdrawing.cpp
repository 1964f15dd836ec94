#include "riserdrawing.h"

#include "drawingtext.h"
#include "lengthestimate.h"
#include "pagesetup.h"
#include "plancontent.h"
#include "sheetlayout.h"
#include "sheetpen.h"
#include "units.h"
#include "words.h"

#include <QtCore/QMap>
#include <QtCore/QSet>

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

// Millimetres
constexpr double highestStorey = 45.0;
constexpr double lowestStorey = 22.0;
constexpr double floorWidth = 48.0;  // of the names of floors
constexpr double columnWidth = 78.0; // of a vertical run with its room
constexpr double shaftWidth = 7.0;
constexpr double roomHeight = 15.0;
constexpr double titleHeight = 7.0;
constexpr double slabHeight = 1.2;
constexpr double nameSize = 3.2;
constexpr double textSize = 2.4;

const QColor slabColor(0x8a, 0x8a, 0x8a);
const QColor cableColor(0x1f, 0x5a, 0x96);

/// Numbers of cables by their types.
using Counts = QMap<QString, int>;

int sumOf(const Counts &counts)
{
    int sum = 0;
    for (const int count : counts)
        sum += count;
    return sum;
}

/// Returns the storeys from the lowest to the highest: positions of floors.
QVector<int> storeysFromBelow(const JobSnapshot &job)
{
    QVector<QPair<int, int>> numbered;
    for (int i = 0; i < job.floors().size(); ++i)
        numbered.append({Storey(job.floors().at(i).element, 0.0).number, i});
    std::sort(numbered.begin(), numbered.end());
    QVector<int> floors;
    for (const auto &[number, floor] : std::as_const(numbered))
        floors.append(floor);
    return floors;
}

/// What the riser drawing shows: which cables go through which vertical runs.
class RiserCounts
{
public:
    explicit RiserCounts(const JobSnapshot &job)
        : m_job(job)
        , m_floors(storeysFromBelow(job))
    {
        for (int storey = 0; storey < m_floors.size(); ++storey)
            addStorey(storey);
        for (const snapshot::Cable &cable : job.cables())
            addCable(cable);
    }

    const QVector<int> &floors() const { return m_floors; }
    /// Names of vertical runs, each of which is a column.
    const QStringList &columns() const { return m_columns; }
    /// Positions of the vertical runs of a storey in a column.
    QVector<int> runsAt(int storey, int column) const { return m_runs.value({storey, column}); }
    /// Cables that go from a storey to the next higher one in a column.
    Counts through(int storey, int column) const { return m_through.value({storey, column}); }
    /// Cables that end in a room.
    int cablesInRoom(int room) const { return m_cablesInRoom.value(room); }
    /// Cables that go to another floor without a vertical run.
    int withoutRun() const { return m_withoutRun; }
    /// Cables that change from a column to another one, by the two columns.
    const QMap<QPair<int, int>, int> &changes() const { return m_changes; }

private:
    void addStorey(int storey)
    {
        const snapshot::Range rooms = m_job.floors().at(m_floors.at(storey)).rooms;
        m_storeyOfFloor.insert(m_floors.at(storey), storey);
        for (int room = rooms.first; room < rooms.end(); ++room) {
            const snapshot::Range runs = m_job.rooms().at(room).verticalRuns;
            for (int run = runs.first; run < runs.end(); ++run) {
                const QString name = m_job.verticalRuns().at(run).id;
                int column = int(m_columns.indexOf(name));
                if (column < 0) {
                    column = int(m_columns.size());
                    m_columns.append(name);
                }
                m_columnOfRun.insert(run, column);
                m_runs[{storey, column}].append(run);
            }
        }
    }

    /// Returns the room of an end of a cable or of a vertical run, or -1 if there is none.
    int roomOf(const snapshot::Target &target) const
    {
        if (target.exists() && target.kind == ElementKind::Ports)
            return m_job.ports().at(target.position).holder;
        if (target.exists() && target.kind == ElementKind::VerticalRuns)
            return m_job.verticalRuns().at(target.position).holder;
        return -1;
    }

    int storeyOf(int room) const { return m_storeyOfFloor.value(m_job.rooms().at(room).holder); }

    void addCable(const snapshot::Cable &cable)
    {
        QVector<snapshot::Target> places{cable.fromTarget};
        places += cable.pathTargets;
        places.append(cable.toTarget);
        QSet<int> rooms;
        for (const snapshot::Target &end : {cable.fromTarget, cable.toTarget}) {
            if (const int room = roomOf(end); room >= 0)
                rooms.insert(room);
        }
        for (const int room : std::as_const(rooms))
            ++m_cablesInRoom[room];
        int last = -1; // the last vertical run
        bool hasClimbed = false;
        for (const snapshot::Target &place : std::as_const(places)) {
            if (!place.exists() || place.kind != ElementKind::VerticalRuns)
                continue;
            if (last >= 0)
                hasClimbed = climb(last, place.position, cable.type) || hasClimbed;
            last = place.position;
        }
        const int from = roomOf(cable.fromTarget);
        const int to = roomOf(cable.toTarget);
        if (!hasClimbed && from >= 0 && to >= 0 && storeyOf(from) != storeyOf(to))
            ++m_withoutRun;
    }

    /// Notes that a cable goes from a vertical run to another one. Returns whether they are on different storeys.
    bool climb(int from, int to, const QString &type)
    {
        const int a = storeyOf(m_job.verticalRuns().at(from).holder);
        const int b = storeyOf(m_job.verticalRuns().at(to).holder);
        const int lower = a < b ? from : to;
        const int column = m_columnOfRun.value(lower);
        const int upperColumn = m_columnOfRun.value(lower == from ? to : from);
        for (int storey = std::min(a, b); storey < std::max(a, b); ++storey)
            ++m_through[{storey, column}][type];
        if (column != upperColumn && a != b)
            ++m_changes[{column, upperColumn}];
        return a != b;
    }

    const JobSnapshot &m_job;
    const QVector<int> m_floors;
    QStringList m_columns;
    QHash<int, int> m_storeyOfFloor;
    QHash<int, int> m_columnOfRun;
    QMap<QPair<int, int>, QVector<int>> m_runs;
    QMap<QPair<int, int>, Counts> m_through;
    QMap<QPair<int, int>, int> m_changes;
    QHash<int, int> m_cablesInRoom;
    int m_withoutRun = 0;
};

/// Draws the storeys and the vertical runs.
class RiserBuilder
{
public:
    RiserBuilder(const JobSnapshot &job, const QSizeF &room, const TextMeasure &measure)
        : m_job(job)
        , m_counts(job)
        , m_measure(measure)
        , m_height(std::clamp((room.height() - titleHeight - slabHeight) / std::max(1, storeyCount()), lowestStorey,
                              highestStorey))
    {
    }

    PlanContent build()
    {
        m_content.name = DrawingText::tr("Riser");
        for (int column = 0; column < m_counts.columns().size(); ++column)
            addText({centerOf(column) - shaftWidth / 2, -2.0}, m_counts.columns().at(column), nameSize, true);
        for (int storey = 0; storey < storeyCount(); ++storey)
            addStorey(storey);
        addSlab(topOf(-1));
        for (const double x : {0.0, width()})
            add(Layer::Rooms, ElementKind::None, {}, {},
                SceneLine{{{x, topOf(storeyCount() - 1)}, {x, topOf(-1) + slabHeight}}, {slabColor, 0.5, {}}});
        for (int column = 0; column < m_counts.columns().size(); ++column)
            addColumn(column);
        for (const SceneItem &item : std::as_const(m_content.items))
            m_content.bounds |= boundsOf(item);
        addLists();
        return std::move(m_content);
    }

private:
    int storeyCount() const { return int(m_counts.floors().size()); }
    double width() const { return floorWidth + columnWidth * std::max(1, int(m_counts.columns().size())); }
    /// Returns where the ceiling of a storey is. The storey -1 is below the lowest one.
    double topOf(int storey) const { return (storeyCount() - 1 - storey) * m_height; }
    double centerOf(int column) const { return floorWidth + columnWidth * column + 10.0; }
    /// Returns the middle of the shafts of a storey.
    double middleOf(int storey) const { return topOf(storey) + slabHeight + 2.0 + roomHeight / 2; }

    void add(Layer layer, ElementKind kind, const QString &tag, const QString &title, const SceneShape &shape)
    {
        m_content.items.append({layer, kind, tag, title, shape});
    }

    double addText(const QPointF &position, const QString &words, double size, bool isBold = false,
                   const QColor &color = Qt::black, const QColor &background = QColor())
    {
        SceneText text = m_measure.text(position, words, size, isBold, color);
        text.background = background;
        add(Layer::Labels, ElementKind::None, {}, {}, text);
        return text.width;
    }

    void addSlab(double y)
    {
        add(Layer::Rooms, ElementKind::None, {}, {},
            rectangle({0.0, y, width(), slabHeight}, slabColor, {slabColor, 0.0, LineStyle::Solid}));
    }

    void addStorey(int storey)
    {
        const snapshot::Floor &floor = m_job.floors().at(m_counts.floors().at(storey));
        const double top = topOf(storey);
        addSlab(top);
        int ports = 0;
        for (int room = floor.rooms.first; room < floor.rooms.end(); ++room)
            ports += m_job.rooms().at(room).ports.count;
        constexpr double lineHeight = 4.6;
        const double room = floorWidth - 4.0;
        addText({1.0, top + slabHeight + 5.5}, m_measure.elided(floor.id, nameSize, room), nameSize, true);
        addText({1.0, top + slabHeight + 5.5 + lineHeight}, DrawingText::tr("Rooms: %1").arg(roomsOf(floor)), textSize,
                false, dimColor);
        addText({1.0, top + slabHeight + 5.5 + 2 * lineHeight}, DrawingText::tr("Ports: %1").arg(ports), textSize,
                false, dimColor);
        for (int column = 0; column < m_counts.columns().size(); ++column) {
            for (const int run : m_counts.runsAt(storey, column))
                addRun(storey, column, run);
        }
    }

    int roomsOf(const snapshot::Floor &floor) const
    {
        int rooms = 0;
        for (int room = floor.rooms.first; room < floor.rooms.end(); ++room)
            rooms += m_job.rooms().at(room).id == QLatin1String("Undefined") ? 0 : 1;
        return rooms;
    }

    /// Draws a vertical run: its shaft, and its room beside it.
    void addRun(int storey, int column, int number)
    {
        const snapshot::VerticalRun &run = m_job.verticalRuns().at(number);
        const snapshot::Room &room = m_job.rooms().at(run.holder);
        const double x = centerOf(column);
        const double y = middleOf(storey);
        const LineStyle style{Qt::black, 0.3, LineStyle::Solid};
        const QRectF box(x - shaftWidth / 2, y - roomHeight / 2, columnWidth - 12.0, roomHeight);
        add(Layer::Rooms, ElementKind::Rooms, room.element, room.id, rectangle(box, Qt::white, style));
        const QRectF shaft(box.topLeft(), QSizeF(shaftWidth, roomHeight));
        add(Layer::VerticalRuns, ElementKind::VerticalRuns, run.element, run.id, rectangle(shaft, Qt::white, style));
        add(Layer::VerticalRuns, ElementKind::None, {}, {}, SceneLine{{shaft.topLeft(), shaft.bottomRight()}, style});
        add(Layer::VerticalRuns, ElementKind::None, {}, {}, SceneLine{{shaft.bottomLeft(), shaft.topRight()}, style});
        const double left = shaft.right() + 2.0;
        addText({left, box.top() + 5.4}, m_measure.elided(room.id, nameSize, box.right() - left - 4.0), nameSize, true);
        addText({left, box.top() + 11.0},
                DrawingText::tr("Ports: %1, cables: %2").arg(room.ports.count).arg(m_counts.cablesInRoom(run.holder)),
                textSize);
    }

    /// Draws the cables between the storeys of a column.
    void addColumn(int column)
    {
        for (int storey = 0; storey + 1 < storeyCount(); ++storey) {
            const Counts counts = m_counts.through(storey, column);
            if (!counts.isEmpty())
                addCables(column, storey, counts);
        }
    }

    void addCables(int column, int storey, const Counts &counts)
    {
        const double x = centerOf(column);
        // A storey without the vertical run is passed.
        const bool endsAbove = !m_counts.runsAt(storey + 1, column).isEmpty();
        const bool beginsHere = !m_counts.runsAt(storey, column).isEmpty();
        const double below = middleOf(storey) - (beginsHere ? roomHeight / 2 : 0.0);
        const double above = middleOf(storey + 1) + (endsAbove ? roomHeight / 2 : 0.0);
        const int sum = sumOf(counts);
        constexpr double single = 0.35;
        constexpr double forEachDoubling = 0.2;
        add(Layer::Cables, ElementKind::None, {}, DrawingText::tr("%1 cables").arg(sum),
            SceneLine{{{x, below}, {x, above}}, {cableColor, single + forEachDoubling * std::log2(sum), {}}});
        QStringList types;
        for (auto count = counts.cbegin(); count != counts.cend(); ++count)
            types.append(QStringLiteral("%1 \u00d7 %2")
                             .arg(*count)
                             .arg(count.key().isEmpty() ? DrawingText::tr("no type") : count.key()));
        const double y = middleOf(storey + 1) + roomHeight / 2 + 4.6;
        const QString text = types.join(QLatin1String(", "));
        addText({x + 2.5, y}, m_measure.elided(text, textSize, columnWidth - 14.0), textSize, true, cableColor,
                Qt::white);
    }

    void addLists()
    {
        QVector<ColumnEntry> &legend = m_content.legend;
        legend.append(ColumnEntry::heading(DrawingText::tr("Vertical runs")));
        for (int column = 0; column < m_counts.columns().size(); ++column) {
            Counts most;
            for (int storey = 0; storey + 1 < storeyCount(); ++storey) {
                const Counts counts = m_counts.through(storey, column);
                if (sumOf(counts) > sumOf(most))
                    most = counts;
            }
            legend.append(ColumnEntry::listed(
                {}, DrawingText::tr("%1: at most %2 cables").arg(m_counts.columns().at(column)).arg(sumOf(most))));
        }
        const QMap<QPair<int, int>, int> &changes = m_counts.changes();
        for (auto change = changes.cbegin(); change != changes.cend(); ++change)
            legend.append(ColumnEntry::listed(
                {}, DrawingText::tr("From %1 to %2: %3 cables")
                        .arg(m_counts.columns().at(change.key().first), m_counts.columns().at(change.key().second))
                        .arg(*change)));
        if (m_counts.withoutRun() > 0)
            legend.append(ColumnEntry::listed(
                {}, DrawingText::tr("Cables between floors without a vertical run: %1").arg(m_counts.withoutRun())));
    }

    const JobSnapshot &m_job;
    const RiserCounts m_counts;
    const TextMeasure &m_measure;
    const double m_height; ///< of a storey
    PlanContent m_content;
};

} // namespace

DrawingResult drawRiser(const JobSnapshot &job, const DrawingOptions &options)
{
    const QString fontError = loadDrawingFonts();
    if (!fontError.isEmpty())
        return {{}, fontError, {}};
    const PageSetup setup(job, options, words::FloorPlanSettings);
    if (!setup.problem().isEmpty())
        return {{}, setup.problem(), {}};
    const TextMeasure measure;
    const PlanContent content = RiserBuilder(job, roomForPlan(setup.paper()), measure).build();
    DrawingResult result;
    result.drawing.pages = sheetsWith(content, {measure, setup.paper(), PlanOptions::Grow, {}, {}}, 0).pages;
    if (result.drawing.pages.constFirst().size != setup.paper())
        result.warnings.append(DrawingText::tr("the riser does not fit on the paper, so the page is larger"));
    result.drawing.title = titleOf(job, content.name);
    QStringList subjects;
    QStringList scales;
    for (int i = 0; i < result.drawing.pages.size(); ++i) {
        subjects.append(content.name);
        scales.append(DrawingText::tr("None"));
    }
    setup.complete(&result, DrawingText::tr("Drawing"), subjects, scales);
    return result;
}

} // namespace cabledoc
