#include "labelplacement.h"

#include "wholecharacters.h"

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

constexpr double smallestCell = 3.0; // millimetres
// So many boxes or lines make a cell so crowded that nothing more is noted.
constexpr std::size_t crowdOfBoxes = 64;
constexpr std::size_t crowdOfLines = 16;
constexpr double gap = 0.4;        // between an anchor and its label
constexpr double clearance = 0.35; // between labels, which is less than the gap
constexpr double smallSize = 1.4;  // of fonts where there is little room

/// Returns whether a line touches a box, by cutting off what is outside of each edge.
bool touches(const QLineF &line, const QRectF &box)
{
    double begin = 0.0;
    double end = 1.0;
    const auto cut = [&begin, &end](double from, double along, double low, double high) {
        if (along == 0.0)
            return from > low && from < high;
        const double atLow = (low - from) / along;
        const double atHigh = (high - from) / along;
        begin = std::max(begin, std::min(atLow, atHigh));
        end = std::min(end, std::max(atLow, atHigh));
        return begin < end;
    };
    return cut(line.x1(), line.dx(), box.left(), box.right()) && cut(line.y1(), line.dy(), box.top(), box.bottom());
}

/// Calls a function with the places along a line, at most a step apart.
template <typename Function> void walk(const QLineF &line, double step, Function visit)
{
    const int steps = std::max(1, int(std::ceil(line.length() / step)));
    for (int i = 0; i <= steps; ++i)
        visit(line.pointAt(double(i) / steps));
}

/// Returns the text with its middle left out if it is long. Names of a plan often differ in their ends.
QString shortened(const QString &text)
{
    constexpr int begin = 2;
    constexpr int end = 5;
    return text.size() <= begin + end + 1 ? text : beginOf(text, begin) + QChar(0x2026) + endOf(text, end);
}

/// Returns the size of a font whose lines are no higher than the anchor, and not larger than the given size.
double sizeInside(const QRectF &anchor, double largest)
{
    SceneText text;
    text.size = 1.0;
    return std::min(largest, anchor.height() / boxOf(text).height());
}

/// Returns the key of a cell that is larger than any symbol: of the one at a place, or of one beside it.
quint64 crowdedCell(const QPointF &place, int dx, int dy)
{
    constexpr double size = 12.0; // millimetres
    const int column = int(std::floor(place.x() / size)) + dx;
    const int row = int(std::floor(place.y() / size)) + dy;
    return quint64(quint32(column)) << 32 | quint32(row);
}

} // namespace

// PlaceGrid

PlaceGrid::PlaceGrid(const QRectF &area, int entries)
    : m_area(area)
    , m_cellSize(std::max(smallestCell, std::sqrt(area.width() * area.height() / (4.0 * std::max(entries, 1000)))))
    , m_columns(int(area.width() / m_cellSize) + 1)
    , m_rows(int(area.height() / m_cellSize) + 1)
    , m_cells(std::size_t(m_columns) * std::size_t(m_rows))
{
}

int PlaceGrid::column(double x) const
{
    return std::clamp(int((x - m_area.left()) / m_cellSize), 0, m_columns - 1);
}

int PlaceGrid::row(double y) const
{
    return std::clamp(int((y - m_area.top()) / m_cellSize), 0, m_rows - 1);
}

void PlaceGrid::add(const QRectF &box)
{
    for (int y = row(box.top()); y <= row(box.bottom()); ++y) {
        for (int x = column(box.left()); x <= column(box.right()); ++x) {
            Cell &cell = cellAt(x, y);
            cell.isFull = cell.isFull || cell.boxes.size() >= crowdOfBoxes;
            if (!cell.isFull)
                cell.boxes.push_back(box);
        }
    }
}

void PlaceGrid::add(const QLineF &line)
{
    const Cell *last = nullptr;
    walk(line, m_cellSize / 2, [&](const QPointF &place) {
        Cell &cell = cellAt(column(place.x()), row(place.y()));
        cell.isFull = cell.isFull || cell.lines.size() >= crowdOfLines;
        if (&cell != last && !cell.isFull)
            cell.lines.push_back(line);
        last = &cell;
    });
}

bool PlaceGrid::isFree(const QRectF &box) const
{
    for (int y = row(box.top()); y <= row(box.bottom()); ++y) {
        for (int x = column(box.left()); x <= column(box.right()); ++x) {
            const Cell &cell = cellAt(x, y);
            if (cell.isFull)
                return false;
            const auto meets = [&box](const QRectF &other) { return other.intersects(box); };
            const auto crosses = [&box](const QLineF &other) { return touches(other, box); };
            if (std::any_of(cell.boxes.begin(), cell.boxes.end(), meets)
                || std::any_of(cell.lines.begin(), cell.lines.end(), crosses))
                return false;
        }
    }
    return true;
}

bool PlaceGrid::isFree(const QLineF &line) const
{
    bool isFree = true;
    walk(line, m_cellSize / 2, [&](const QPointF &place) {
        const Cell &cell = cellAt(column(place.x()), row(place.y()));
        isFree = isFree && !cell.isFull
                 && std::none_of(cell.boxes.begin(), cell.boxes.end(),
                                 [&line](const QRectF &box) { return touches(line, box); });
    });
    return isFree;
}

// LabelPlacement

LabelPlacement::LabelPlacement(const QRectF &area, int boxes, int lines, const TextMeasure &measure)
    : m_measure(measure)
    , m_area(area)
    , m_boxes(area, boxes)
    , m_labels(area, boxes)
    , m_lines(area, lines)
    , m_walls(area, lines)
{
}

PlacedLabel LabelPlacement::place(const Label &label)
{
    const double small = std::min(smallSize, label.size);
    const Setting whole{label.text, label.size, false};
    const std::vector<std::pair<Setting, Avoidance>> attempts{{whole, WallsAndLines},
                                                              {whole, Walls},
                                                              {{label.text, small, false}, Walls},
                                                              {{label.text, small, true}, Walls},
                                                              {whole, Nothing},
                                                              {{label.text, small, false}, Nothing},
                                                              {{label.text, small, true}, Nothing},
                                                              {{shortened(label.text), small, false}, Nothing},
                                                              {{shortened(label.text), small, true}, Nothing}};
    for (const auto &[setting, avoidance] : attempts) {
        if (const auto placed = placeBeside(label, setting, avoidance))
            return *placed;
    }
    if (const auto placed = placeWithLeader(label, {label.text, small, false}, {2.5, 5.0, 8.0, 12.0, 17.0, 23.0}))
        return *placed;
    return placeNumber(label);
}

std::vector<PlacedLabel> LabelPlacement::placeRow(const QVector<Label> &row, const QString &all)
{
    for (const Side side : {Above, Below}) {
        std::vector<PlacedLabel> placed = placeUpright(row, side);
        if (!placed.empty())
            return placed;
    }
    Label label = row.constFirst();
    label.color = Qt::black;
    for (const Label &other : row)
        label.anchor |= other.anchor;
    constexpr int longest = 16; // what is longer becomes a number
    const double small = std::min(smallSize, label.size);
    for (const Avoidance avoidance : {Walls, Nothing}) {
        if (all.size() > longest)
            break;
        if (const auto placed = placeAtEnd(label, {all, small, false}, avoidance))
            return {*placed};
    }
    label.isBold = true;
    for (const Avoidance avoidance : {Walls, Nothing}) {
        if (auto placed = placeAtEnd(label, {QString::number(m_numbers + 1), small, false}, avoidance)) {
            placed->number = ++m_numbers;
            return {*placed};
        }
    }
    return {placeNumber(label)};
}

std::optional<PlacedLabel> LabelPlacement::placeAtEnd(const Label &label, const Setting &setting, Avoidance avoidance)
{
    const QSizeF size = sizeOf(label, setting);
    const double y = label.anchor.center().y() - size.height() / 2;
    for (const double x : {label.anchor.left() - size.width() - gap, label.anchor.right() + gap}) {
        if (auto placed = placeAt({{x, y}, size}, label, setting, std::nullopt, avoidance))
            return placed;
    }
    return std::nullopt;
}

std::vector<PlacedLabel> LabelPlacement::placeUpright(const QVector<Label> &row, Side side)
{
    std::vector<QRectF> boxes;
    QVector<Setting> settings;
    for (const Label &label : row) {
        settings.append({label.text, sizeInside(label.anchor, std::min(smallSize, label.size)), true});
        QRectF box(QPointF(), sizeOf(label, settings.constLast()));
        box.moveCenter(label.anchor.center());
        if (side == Above)
            box.moveBottom(label.anchor.top() - gap);
        else
            box.moveTop(label.anchor.bottom() + gap);
        const bool meetsLast = !boxes.empty() && boxes.back().intersects(box);
        if (meetsLast || !isFree(box, settings.constLast()))
            return {};
        boxes.push_back(box);
    }
    std::vector<PlacedLabel> placed;
    placed.reserve(boxes.size());
    for (int i = 0; i < row.size(); ++i)
        placed.push_back(taken(boxes[std::size_t(i)], row.at(i), settings.at(i)));
    return placed;
}

QSizeF LabelPlacement::sizeOf(const Label &label, const Setting &setting) const
{
    SceneText text;
    text.size = setting.size;
    text.width = m_measure.width(setting.text, setting.size, label.isBold);
    text.isVertical = setting.isVertical;
    return boxOf(text).size();
}

std::optional<PlacedLabel> LabelPlacement::placeBeside(const Label &label, const Setting &setting, Avoidance avoidance)
{
    const QSizeF size = sizeOf(label, setting);
    const QRectF &anchor = label.anchor;
    const double left = anchor.left() - size.width() - gap;
    const double middleX = anchor.center().x() - size.width() / 2;
    const double right = anchor.right() + gap;
    const double above = anchor.top() - size.height() - gap;
    const double middleY = anchor.center().y() - size.height() / 2;
    const double below = anchor.bottom() + gap;
    std::vector<QPointF> corners;
    if (label.corner)
        corners.push_back(*label.corner);
    if (label.isOnAnchor)
        corners.emplace_back(middleX, middleY);
    corners.insert(corners.end(), {{middleX, below},
                                   {middleX, above},
                                   {right, middleY},
                                   {left, middleY},
                                   {right, above},
                                   {right, below},
                                   {left, above},
                                   {left, below}});
    for (const QPointF &corner : corners) {
        // A label on a line covers that line in any case.
        const bool isOnLine = label.isOnAnchor && corner == QPointF(middleX, middleY);
        if (auto placed = placeAt({corner, size}, label, setting, std::nullopt, isOnLine ? Nothing : avoidance))
            return placed;
    }
    return std::nullopt;
}

std::optional<PlacedLabel> LabelPlacement::placeWithLeader(const Label &label, const Setting &setting,
                                                           const std::vector<double> &distances)
{
    const QSizeF size = sizeOf(label, setting);
    constexpr int directions = 16;
    for (const double distance : distances) {
        for (int i = 0; i < directions; ++i) {
            const double angle = 2.0 * M_PI * i / directions;
            // The label is pushed out of the circle by half of its size.
            const QPointF center =
                label.anchor.center()
                + QPointF(std::cos(angle) * (distance + (label.anchor.width() + size.width()) / 2),
                          std::sin(angle) * (distance + (label.anchor.height() + size.height()) / 2));
            QRectF box(QPointF(), size);
            box.moveCenter(center);
            if (auto placed = placeAt(box, label, setting, label.anchor.center(), Nothing))
                return placed;
        }
    }
    return std::nullopt;
}

std::optional<PlacedLabel> LabelPlacement::placeAt(const QRectF &box, const Label &label, const Setting &setting,
                                                   const std::optional<QPointF> &leaderFrom, Avoidance avoidance)
{
    if (!isFree(box, setting) || isAvoided(box, label.anchor.center(), avoidance))
        return std::nullopt;
    if (!leaderFrom)
        return taken(box, label, setting);
    const QPointF end(std::clamp(leaderFrom->x(), box.left(), box.right()),
                      std::clamp(leaderFrom->y(), box.top(), box.bottom()));
    const QLineF leader(*leaderFrom, end);
    if (!m_labels.isFree(leader))
        return std::nullopt;
    PlacedLabel placed = taken(box, label, setting);
    placed.leader = leader;
    m_lines.add(leader);
    return placed;
}

PlacedLabel LabelPlacement::taken(const QRectF &box, const Label &label, const Setting &setting)
{
    PlacedLabel placed;
    SceneText &text = placed.text;
    text.text = setting.text;
    text.size = setting.size;
    text.isBold = label.isBold;
    text.isVertical = setting.isVertical;
    text.color = label.color;
    text.background = Qt::white;
    m_measure.measure(&text);
    // The box of a text at the origin tells where its baseline is.
    text.position = box.topLeft() - boxOf(text).topLeft();
    m_boxes.add(box);
    m_labels.add(box);
    return placed;
}

bool LabelPlacement::isFree(const QRectF &box, const Setting &setting) const
{
    // Texts that follow each other stay apart.
    const QRectF room = setting.isVertical ? box.adjusted(0.0, -clearance, 0.0, clearance)
                                           : box.adjusted(-clearance, 0.0, clearance, 0.0);
    return m_area.contains(box) && m_boxes.isFree(room);
}

bool LabelPlacement::isAvoided(const QRectF &box, const QPointF &anchor, Avoidance avoidance) const
{
    if (avoidance == Nothing)
        return false;
    // No wall stands between what is named and its label.
    const QRectF wayToLabel = box.united(QRectF(anchor, QSizeF(clearance, clearance)));
    return !m_walls.isFree(wayToLabel) || (avoidance == WallsAndLines && !m_lines.isFree(box));
}

PlacedLabel LabelPlacement::placeNumber(const Label &label)
{
    const QString number = QString::number(m_numbers + 1);
    Label numbered = label;
    numbered.isBold = true;
    numbered.corner.reset();
    const Setting setting{number, std::min(smallSize, label.size), false};
    std::optional<PlacedLabel> placed = placeBeside(numbered, setting, Nothing);
    if (!placed)
        placed = placeWithLeader(numbered, setting, {2.5, 5.0, 8.0, 12.0, 17.0, 23.0, 30.0, 38.0});
    if (!placed)
        return placeNumberInside(numbered);
    placed->number = ++m_numbers;
    return *placed;
}

PlacedLabel LabelPlacement::placeNumberInside(const Label &label)
{
    PlacedLabel placed;
    placed.number = numberAt(label.anchor);
    if (placed.number > 0)
        return placed; // labels that stand on each other share a number
    placed.number = ++m_numbers;
    SceneText &text = placed.text;
    text.text = QString::number(placed.number);
    text.isBold = true;
    text.color = label.color;
    text.background = Qt::white;
    text.size = 1.0;
    m_measure.measure(&text);
    const QSizeF whole = boxOf(text).size();
    text.size = std::min(label.anchor.width() / whole.width(), label.anchor.height() / whole.height());
    constexpr int attempts = 10;
    for (int i = 0; i < attempts; ++i) {
        m_measure.measure(&text);
        text.position += label.anchor.center() - boxOf(text).center();
        if (m_labels.isFree(boxOf(text)))
            break;
        text.size /= 2;
    }
    m_inside[crowdedCell(label.anchor.center(), 0, 0)].push_back({label.anchor, placed.number});
    m_labels.add(boxOf(text));
    return placed;
}

int LabelPlacement::numberAt(const QRectF &anchor) const
{
    for (const int dx : {-1, 0, 1}) {
        for (const int dy : {-1, 0, 1}) {
            const auto cell = m_inside.find(crowdedCell(anchor.center(), dx, dy));
            if (cell == m_inside.end())
                continue;
            for (const InsideNumber &inside : cell->second) {
                if (inside.anchor.intersects(anchor))
                    return inside.number;
            }
        }
    }
    return 0;
}

} // namespace cabledoc
