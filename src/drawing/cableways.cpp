#include "cableways.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace cabledoc {

namespace {

constexpr double farthestPlace = 1.0e6; // pixels; no plan is that large
constexpr double stepsInAPixel = 100.0;

/// A place, in whole steps. Whole numbers tell exactly whether places lie on one line.
struct Place
{
    qint64 x = 0;
    qint64 y = 0;

    bool operator==(const Place &other) const { return x == other.x && y == other.y; }
    bool operator<(const Place &other) const { return std::tie(x, y) < std::tie(other.x, other.y); }
    QPointF position() const { return {double(x) / stepsInAPixel, double(y) / stepsInAPixel}; }
};

/// An endless line. Its direction is as short as possible with whole numbers and points to the right or down.
struct Line
{
    qint64 dx;
    qint64 dy;
    qint64 distance; ///< from the origin, in lengths of the direction

    auto key() const { return std::tie(dx, dy, distance); }
};

/// Cables of a group that go straight from place to place.
struct Segment
{
    Place from;
    Place to;
    int group;
    int count;
    qint64 cables; ///< sum of the positions of the cables, so that a single one is known at the end
};

Line lineOf(const Segment &segment)
{
    const qint64 dx = segment.to.x - segment.from.x;
    const qint64 dy = segment.to.y - segment.from.y;
    const qint64 divisor = std::gcd(dx, dy);
    const Line line{dx / divisor, dy / divisor, 0};
    return {line.dx, line.dy, line.dx * segment.from.y - line.dy * segment.from.x};
}

/// The begin or end of a segment on a line.
struct Event
{
    Line line;
    Place place; // places on a line are in the order of the line
    int group;
    int count; ///< of cables that join; negative if they leave
    qint64 cables;

    bool operator<(const Event &other) const
    {
        return std::tuple_cat(line.key(), std::tie(place, group))
               < std::tuple_cat(other.line.key(), std::tie(other.place, other.group));
    }
};

struct SegmentKey
{
    Place from;
    Place to;
    int group;

    bool operator==(const SegmentKey &other) const
    {
        return from == other.from && to == other.to && group == other.group;
    }
};

struct SegmentHash
{
    std::size_t operator()(const SegmentKey &key) const
    {
        std::size_t hash = std::size_t(key.group);
        for (const qint64 number : {key.from.x, key.from.y, key.to.x, key.to.y})
            hash = (hash ^ std::size_t(number)) * 0x9E3779B97F4A7C15ULL;
        return hash ^ hash >> 32;
    }
};

/// Finds the distinct segments of the cables on a floor.
class SegmentFinder
{
public:
    SegmentFinder(const JobSnapshot &job, int floor, const CablePalette &palette)
        : m_job(job)
        , m_floor(floor)
        , m_palette(palette)
    {
    }

    std::vector<Segment> find()
    {
        for (int cable = 0; cable < m_job.cables().size(); ++cable)
            addCable(cable);
        return std::move(m_segments);
    }

private:
    void addCable(int cable)
    {
        const snapshot::Cable &fields = m_job.cables().at(cable);
        std::optional<Place> last = placeOf(fields.fromTarget);
        const auto goOn = [&](const snapshot::Target &target) {
            const std::optional<Place> next = placeOf(target);
            if (last && next && !(*last == *next))
                addSegment(*last, *next, cable);
            last = next;
        };
        for (const snapshot::Target &target : fields.pathTargets)
            goOn(target);
        goOn(fields.toTarget);
    }

    void addSegment(const Place &a, const Place &b, int cable)
    {
        const auto [from, to] = std::minmax(a, b);
        const int group = m_palette.groupOf(cable);
        const auto [found, isNew] = m_known.emplace(SegmentKey{from, to, group}, m_segments.size());
        if (isNew)
            m_segments.push_back({from, to, group, 0, 0});
        Segment &segment = m_segments[found->second];
        ++segment.count;
        segment.cables += cable;
    }

    /// Returns the place of an element, or nothing if it has none on the floor.
    std::optional<Place> placeOf(const snapshot::Target &target) const
    {
        if (!target.exists())
            return std::nullopt;
        switch (target.kind) {
        case ElementKind::Points:
            return placeOn(m_job.points().at(target.position).holder, m_job.points().at(target.position));
        case ElementKind::Ports:
            return placeInRoom(m_job.ports().at(target.position));
        case ElementKind::VerticalRuns:
            return placeInRoom(m_job.verticalRuns().at(target.position));
        default:
            return std::nullopt;
        }
    }

    template <typename Element> std::optional<Place> placeInRoom(const Element &element) const
    {
        return placeOn(m_job.rooms().at(element.holder).holder, element);
    }

    template <typename Element> std::optional<Place> placeOn(int floor, const Element &element) const
    {
        if (floor != m_floor || !isPlaced(element.x, element.y))
            return std::nullopt;
        return Place{std::llround(element.x * stepsInAPixel), std::llround(element.y * stepsInAPixel)};
    }

    const JobSnapshot &m_job;
    const int m_floor;
    const CablePalette &m_palette;
    std::unordered_map<SegmentKey, std::size_t, SegmentHash> m_known;
    std::vector<Segment> m_segments;
};

/// Follows each line from event to event and notes the ways between them.
class LineSweep
{
public:
    LineSweep(std::vector<Event> events, const CablePalette &palette)
        : m_events(std::move(events))
        , m_palette(palette)
    {
        std::sort(m_events.begin(), m_events.end());
    }

    QVector<CableWay> sweep()
    {
        for (std::size_t next = 0; next < m_events.size();)
            next = passPlace(next);
        return std::move(m_ways);
    }

private:
    /// Takes all events at a place of a line. Returns the number of the next event.
    std::size_t passPlace(std::size_t first)
    {
        const Place place = m_events[first].place;
        QMap<int, int> changes;
        qint64 cables = 0;
        std::size_t next = first;
        for (; next < m_events.size() && m_events[next].place == place
               && m_events[next].line.key() == m_events[first].line.key();
             ++next) {
            changes[m_events[next].group] += m_events[next].count;
            cables += m_events[next].cables;
        }
        const bool isChanged =
            cables != 0 || std::any_of(changes.cbegin(), changes.cend(), [](int count) { return count != 0; });
        if (!isChanged)
            return next; // the same cables go on
        if (!m_groups.isEmpty())
            addWay(place);
        m_begin = place;
        m_cables += cables;
        for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
            m_count += *change;
            int &count = m_groups[change.key()];
            count += *change;
            if (count == 0)
                m_groups.remove(change.key());
        }
        return next;
    }

    void addWay(const Place &end)
    {
        m_ways.append({m_begin.position(), end.position(), m_count, m_palette.groupOfAll(m_groups),
                       m_count == 1 ? int(m_cables) : -1});
    }

    std::vector<Event> m_events;
    const CablePalette &m_palette;
    QVector<CableWay> m_ways;
    // What is on the line between the last place and the next one
    Place m_begin;
    QMap<int, int> m_groups; ///< numbers of cables by groups
    int m_count = 0;
    qint64 m_cables = 0;
};

} // namespace

bool isPlaced(double x, double y)
{
    // A position that is not a number is not within the limits.
    return std::abs(x) <= farthestPlace && std::abs(y) <= farthestPlace && !(x == -1.0 && y == -1.0);
}

QVector<CableWay> waysOnFloor(const JobSnapshot &job, int floor, const CablePalette &palette)
{
    std::vector<Event> events;
    for (const Segment &segment : SegmentFinder(job, floor, palette).find()) {
        const Line line = lineOf(segment);
        events.push_back({line, segment.from, segment.group, segment.count, segment.cables});
        events.push_back({line, segment.to, segment.group, -segment.count, -segment.cables});
    }
    return LineSweep(std::move(events), palette).sweep();
}

} // namespace cabledoc
