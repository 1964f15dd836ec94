#include "sheetlayout.h"

#include "drawingtext.h"
#include "entryflow.h"
#include "sheetpen.h"
#include "units.h"

#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

// Millimetres
constexpr double smallSheet = 140.0; // the short side of sheets up to this size
constexpr double titleHeight = 58.0;
constexpr double barHeight = 24.0;
constexpr double overlap = 10.0; // of tiles
constexpr double planMargin = 3.0;

constexpr int maximumTiles = 1000;

const QColor tileColor(0xc6, 0x28, 0x28);
const LineStyle frameLine{QColor(Qt::black), 0.5, LineStyle::Solid};

/// The lengths that a scale bar shows.
struct BarUnit
{
    QString name;
    double millimeters; ///< length of a unit in the drawing
};

/// Draws a bar of five divisions.
void addBar(SheetPen *pen, const QPointF &corner, double width, const BarUnit &unit)
{
    constexpr int divisions = 5;
    constexpr double height = 1.6;
    constexpr double labelSize = 1.9;
    // The longest round length that fits
    double division = 1.0e6;
    for (int i = 0; division * divisions * unit.millimeters > width; ++i)
        division /= i % 3 == 1 ? 2.5 : 2.0;
    for (int i = 0; i <= divisions; ++i) {
        const QPointF left = corner + QPointF(i * division * unit.millimeters, 0.0);
        if (i < divisions)
            pen->add(rectangle({left, QSizeF(division * unit.millimeters, height)}, i % 2 == 0 ? Qt::black : Qt::white,
                               {QColor(Qt::black), 0.15, LineStyle::Solid}));
        const QString number = QString::number(i * division);
        const QPointF below = left + QPointF(0.0, height + labelSize);
        if (i < divisions)
            pen->text(below - QPointF(0.4, 0.0), number, labelSize);
        else
            pen->text(below - QPointF(0.4, 0.0), number + QLatin1Char(' ') + unit.name, labelSize);
    }
}

void addScaleBar(Scene *sheet, const QRectF &area, const SheetStyle &style)
{
    if (!style.scale.exists() || area.isEmpty())
        return;
    constexpr double millimetersInAMeter = 1000.0;
    SheetPen pen(sheet, style.measure);
    pen.line(area.topLeft(), area.topRight());
    const double width = area.width() - 14.0;
    const QPointF corner = area.topLeft() + QPointF(padding, 4.0);
    addBar(&pen, corner, width, {QStringLiteral("m"), millimetersInAMeter / style.scale.factor});
    addBar(&pen, corner + QPointF(0.0, 10.0), width,
           {QStringLiteral("ft"), inchesInAFoot * millimetersInAnInch / style.scale.factor});
}

void addNorthArrow(Scene *sheet, const QRectF &window, const SheetStyle &style)
{
    if (!style.north)
        return;
    constexpr double radius = 8.0;
    const QPointF center = window.topRight() + QPointF(-radius - 4.0, radius + 7.0);
    QTransform turn;
    turn.translate(center.x(), center.y());
    turn.rotate(*style.north);
    SheetPen pen(sheet, style.measure);
    const LineStyle outline{QColor(Qt::black), 0.25, LineStyle::Solid};
    pen.add(
        SceneArea{turn.map(QPolygonF({{0.0, -radius}, {radius / 2, radius}, {0.0, radius / 2}})), Qt::white, outline});
    pen.add(
        SceneArea{turn.map(QPolygonF({{0.0, -radius}, {-radius / 2, radius}, {0.0, radius / 2}})), Qt::black, outline});
    pen.centeredText(turn.map(QPointF(0.0, -radius - 2.5)), DrawingText::tr("N", "north"), 4.0, true);
}

/// Lays out a plan on sheets.
class SheetBuilder
{
public:
    SheetBuilder(const PlanContent &plan, const SheetStyle &style, int firstPage)
        : m_plan(plan)
        , m_style(style)
        , m_firstPage(firstPage)
        , m_parts(style.paper)
        , m_lists(plan.lists, style.measure)
        , m_bounds(plan.bounds.marginsAdded({planMargin, planMargin, planMargin, planMargin}))
    {
    }

    PlanSheets build()
    {
        if (m_style.overflow == PlanOptions::Grow)
            grow();
        if (!m_style.scale.exists())
            m_parts.column.setBottom(m_parts.bar.bottom()); // no scale bar
        // Each sheet has the legend, unless it takes too much room for that.
        m_repeatsLegend =
            !m_parts.isSmall
            && EntryFlow(m_plan.legend, m_style.measure).height(m_parts.column.width()) < m_parts.column.height() / 2;
        if (!m_repeatsLegend)
            m_lists.prepend(m_plan.legend);
        const bool fits = m_bounds.width() <= m_parts.window.width() && m_bounds.height() <= m_parts.window.height();
        const QString error = fits ? QString() : divide();
        if (!error.isEmpty())
            return {{}, error, false};
        if (fits)
            addWholePlan();
        else
            addTiles();
        while (!m_lists.isAtEnd())
            addListSheet();
        return {std::move(m_pages), {}, !fits};
    }

private:
    /// Makes the sheet so large that the plan fits.
    void grow()
    {
        const QSizeF window = m_parts.window.size();
        const QSizeF more = m_bounds.size().expandedTo(window) - window;
        m_paper = m_style.paper + more;
        m_parts = SheetParts(m_paper);
    }

    Scene newSheet(const QString &title)
    {
        Scene sheet;
        sheet.title = title;
        sheet.size = m_paper;
        sheet.window = m_parts.window;
        SheetPen pen(&sheet, m_style.measure);
        pen.add(rectangle(m_parts.frame, QColor(), frameLine));
        return sheet;
    }

    /// Fills the column beside a plan.
    void addColumn(Scene *sheet)
    {
        if (m_parts.isSmall)
            return;
        SheetPen pen(sheet, m_style.measure);
        pen.line(m_parts.column.topLeft(), {m_parts.column.left(), m_parts.frame.bottom()});
        QRectF area = m_parts.column.marginsRemoved({padding, padding / 2, padding, padding});
        if (m_repeatsLegend) {
            EntryFlow legend(m_plan.legend, m_style.measure);
            legend.fill(sheet, area);
            area.setTop(area.top() + legend.height(area.width()));
        }
        m_lists.fill(sheet, area);
    }

    /// Adds what belongs to a plan that is to scale.
    void addMeasures(Scene *sheet) const
    {
        addScaleBar(sheet, m_parts.bar, m_style);
        addNorthArrow(sheet, m_parts.window, m_style);
    }

    void addListSheet()
    {
        Scene sheet = newSheet(DrawingText::tr("%1: list").arg(m_plan.name));
        m_lists.fill(&sheet, m_parts.list.marginsRemoved({padding, padding, padding, padding}));
        m_pages.append(sheet);
    }

    void addWholePlan()
    {
        Scene sheet = newSheet(m_plan.name);
        const QPointF offset = m_parts.window.center() - m_bounds.center();
        sheet.items += m_plan.items;
        for (SceneItem &item : sheet.items) {
            if (item.layer != Layer::Sheet)
                moveBy(&item, offset);
        }
        addColumn(&sheet);
        addMeasures(&sheet);
        m_pages.append(sheet);
    }

    // Tiles

    QSizeF step() const { return m_parts.window.size() - QSizeF(overlap, overlap); }

    /// Finds out how many tiles there are. Returns why they cannot be drawn, or an empty string.
    QString divide()
    {
        const double columns = std::max(1.0, std::ceil((m_bounds.width() - overlap) / step().width()));
        const double rows = std::max(1.0, std::ceil((m_bounds.height() - overlap) / step().height()));
        if (!(columns * rows <= maximumTiles))
            return DrawingText::tr("%1 would need more than %2 sheets of this paper in this scale.")
                .arg(m_plan.name)
                .arg(maximumTiles);
        m_columns = int(columns);
        m_rows = int(rows);
        return {};
    }

    /// Returns the part of the plan that a tile shows. All tiles together have the plan in their middle.
    QRectF tile(int column, int row) const
    {
        const QSizeF all(step().width() * m_columns + overlap, step().height() * m_rows + overlap);
        const QPointF corner = m_bounds.center() - QPointF(all.width() / 2, all.height() / 2);
        return {corner + QPointF(step().width() * column, step().height() * row), m_parts.window.size()};
    }

    int pageOfTile(int column, int row) const { return m_firstPage + 1 + row * m_columns + column; }

    void addTiles()
    {
        addOverview();
        QVector<Scene> tiles;
        for (int i = 0; i < m_columns * m_rows; ++i)
            tiles.append(newSheet(DrawingText::tr("%1: part %2").arg(m_plan.name).arg(i + 1)));
        for (const SceneItem &item : m_plan.items)
            addToTiles(item, &tiles);
        for (int i = 0; i < tiles.size(); ++i) {
            addColumn(&tiles[i]);
            addOverlapMarks(&tiles[i], i % m_columns, i / m_columns);
            addMeasures(&tiles[i]);
        }
        m_pages += tiles;
    }

    void addToTiles(const SceneItem &item, QVector<Scene> *tiles) const
    {
        const QRectF box = boundsOf(item);
        const QPointF corner = tile(0, 0).topLeft();
        const auto first = [](double low, double length, double stepLength) {
            return std::max(0, int(std::ceil((low - length) / stepLength)));
        };
        const auto last = [](double high, double stepLength, int count) {
            return std::min(count - 1, int(std::floor(high / stepLength)));
        };
        const QSizeF window = m_parts.window.size();
        const int lastRow = last(box.bottom() - corner.y(), step().height(), m_rows);
        const int lastColumn = last(box.right() - corner.x(), step().width(), m_columns);
        for (int y = first(box.top() - corner.y(), window.height(), step().height()); y <= lastRow; ++y) {
            for (int x = first(box.left() - corner.x(), window.width(), step().width()); x <= lastColumn; ++x) {
                SceneItem copy = item;
                moveBy(&copy, m_parts.window.topLeft() - tile(x, y).topLeft());
                (*tiles)[y * m_columns + x].items.append(copy);
            }
        }
    }

    /// Marks where a tile meets its neighbours, in the middle of the overlap.
    void addOverlapMarks(Scene *sheet, int column, int row) const
    {
        const QRectF join = m_parts.window.marginsRemoved({overlap / 2, overlap / 2, overlap / 2, overlap / 2});
        if (column > 0)
            addOverlapMark(sheet, {join.topLeft(), join.bottomLeft()}, pageOfTile(column - 1, row));
        if (column < m_columns - 1)
            addOverlapMark(sheet, {join.topRight(), join.bottomRight()}, pageOfTile(column + 1, row));
        if (row > 0)
            addOverlapMark(sheet, {join.topLeft(), join.topRight()}, pageOfTile(column, row - 1));
        if (row < m_rows - 1)
            addOverlapMark(sheet, {join.bottomLeft(), join.bottomRight()}, pageOfTile(column, row + 1));
    }

    void addOverlapMark(Scene *sheet, const QLineF &join, int neighbour) const
    {
        SheetPen pen(sheet, m_style.measure);
        pen.line(join.p1(), join.p2(), {tileColor, 0.2, LineStyle::Dashed});
        // Near its end, the label covers less of the plan than in the middle.
        constexpr double almostAtEnd = 0.9;
        const double size = m_parts.isSmall ? 1.5 : 2.4;
        QRectF box(0.0, 0.0, size * 6.5, size * 1.6);
        box.moveCenter(join.pointAt(almostAtEnd));
        box.translate(std::min(0.0, m_parts.window.right() - box.right()),
                      std::min(0.0, m_parts.window.bottom() - box.bottom()));
        box.translate(std::max(0.0, m_parts.window.left() - box.left()), 0.0);
        pen.add(rectangle(box, Qt::white, {tileColor, 0.2, LineStyle::Solid}));
        pen.centeredText(box.center(), DrawingText::tr("Sheet %1").arg(neighbour + 1), size, true, tileColor);
        pen.add(SceneLink{box, neighbour});
    }

    /// Adds a small picture of the plan that shows where the tiles are.
    void addOverview()
    {
        Scene sheet = newSheet(m_plan.name);
        const QRectF all = tile(0, 0).united(tile(m_columns - 1, m_rows - 1));
        const QRectF place = m_parts.window.marginsRemoved({6.0, 12.0, 6.0, 6.0});
        const double factor = std::min(place.width() / all.width(), place.height() / all.height());
        QTransform shrink;
        shrink.translate(place.center().x(), place.center().y());
        shrink.scale(factor, factor);
        shrink.translate(-all.center().x(), -all.center().y());
        for (const SceneItem &item : m_plan.items) {
            if (item.layer != Layer::Rooms || !std::holds_alternative<SceneArea>(item.shape))
                continue;
            SceneItem room = item;
            SceneArea &area = std::get<SceneArea>(room.shape);
            area = {shrink.map(area.corners), area.fill, thinLine};
            sheet.items.append(room);
        }
        SheetPen pen(&sheet, m_style.measure);
        pen.text(m_parts.window.topLeft() + QPointF(6.0, 8.0),
                 DrawingText::tr("Overview of %1, not to scale").arg(m_plan.name), m_parts.isSmall ? 2.0 : 4.0, true);
        for (int row = 0; row < m_rows; ++row) {
            for (int column = 0; column < m_columns; ++column) {
                const QRectF box = shrink.mapRect(tile(column, row));
                const int page = pageOfTile(column, row);
                pen.add(rectangle(box, QColor(), {tileColor, 0.25, LineStyle::Dashed}));
                pen.centeredText(box.center(), QString::number(page + 1), std::min(8.0, box.height() / 2), true,
                                 tileColor);
                pen.add(SceneLink{box, page});
            }
        }
        addColumn(&sheet);
        m_pages.append(sheet);
    }

    const PlanContent &m_plan;
    const SheetStyle &m_style;
    const int m_firstPage;
    QSizeF m_paper = m_style.paper;
    SheetParts m_parts;
    EntryFlow m_lists;
    bool m_repeatsLegend = false;
    QRectF m_bounds; ///< of the plan, with a margin
    int m_columns = 0;
    int m_rows = 0;
    QVector<Scene> m_pages;
};

} // namespace

SheetParts::SheetParts(const QSizeF &size)
    : isSmall(std::min(size.width(), size.height()) <= smallSheet)
{
    const double edge = isSmall ? 3.0 : 10.0;
    frame = QRectF(QPointF(), size).marginsRemoved({edge, edge, edge, edge});
    if (isSmall) {
        constexpr double stripHeight = 5.0;
        title = QRectF(frame.left(), frame.bottom() - stripHeight, frame.width(), stripHeight);
        window = frame.adjusted(0.0, 0.0, 0.0, -stripHeight);
        list = window;
        return;
    }
    const double left = frame.right() - columnWidth;
    title = QRectF(left, frame.bottom() - titleHeight, columnWidth, titleHeight);
    bar = QRectF(left, title.top() - barHeight, columnWidth, barHeight);
    column = QRectF(left, frame.top(), columnWidth, bar.top() - frame.top());
    window = frame.adjusted(0.0, 0.0, -columnWidth, 0.0);
    list = window;
}

QSizeF roomForPlan(const QSizeF &paper)
{
    return SheetParts(paper).window.size() - QSizeF(2.0 * planMargin, 2.0 * planMargin);
}

PlanSheets sheetsWith(const PlanContent &plan, const SheetStyle &style, int firstPage)
{
    return SheetBuilder(plan, style, firstPage).build();
}

} // namespace cabledoc
