#include "commandline.h"
#include "csv.h"
#include "output.h"
#include "textlines.h"
#include "trace.h"

#include <QtCore/QJsonArray>

#include <algorithm>
#include <map>
#include <vector>

using namespace cabledoc;

namespace {

using snapshot::Target;

/// A device or bend on a way. The first one is reached by no connection.
struct Stop
{
    int connection;
    Target place;
    QString tag; ///< by which the connection names the place
};

using Way = std::vector<Stop>;

/// The connections of a job, and the devices and bends at which they end.
class Network
{
public:
    explicit Network(const JobSnapshot &job)
        : m_job(job)
    {
        for (int number = 0; number < job.connections().size(); ++number) {
            const snapshot::Connection &connection = job.connections().at(number);
            enter(connection.fromTarget, number);
            if (keyOf(connection.fromTarget) != keyOf(connection.toTarget))
                enter(connection.toTarget, number);
        }
    }

    /// Returns the ways over bends from a device to other devices. Each way takes at least one connection that no other
    /// way takes.
    std::vector<Way> waysFrom(int device) const
    {
        const Target start{ElementKind::Devices, device};
        std::vector<Reached> reached{{-1, {-1, start, m_job.devices().at(device).element}}};
        std::vector<bool> isTaken(std::size_t(m_job.connections().size()), false);
        std::vector<Step> open = stepsFrom(0, start, isTaken);
        std::vector<Way> ways;
        while (!open.empty()) {
            const Step step = open.back();
            open.pop_back();
            if (isTaken[std::size_t(step.connection)])
                continue;
            isTaken[std::size_t(step.connection)] = true;
            reached.push_back({step.before, stopAfter(step, reached)});
            const Target place = reached.back().stop.place;
            const int here = int(reached.size()) - 1;
            const bool goesOn = place.kind == ElementKind::Vertices;
            const std::vector<Step> steps = goesOn ? stepsFrom(here, place, isTaken) : std::vector<Step>();
            if (steps.empty())
                ways.push_back(wayTo(here, reached));
            open.insert(open.end(), steps.begin(), steps.end());
        }
        return ways;
    }

private:
    using Key = std::pair<ElementKind, int>;

    struct Reached
    {
        int before; ///< number of the stop before it, or -1
        Stop stop;
    };

    /// A connection that leads on from a stop.
    struct Step
    {
        int before; ///< number of the stop
        int connection;
    };

    static Key keyOf(const Target &place) { return {place.kind, place.position}; }

    void enter(const Target &place, int connection)
    {
        if (place.exists())
            m_connectionsAt[keyOf(place)].push_back(connection);
    }

    /// Returns the steps from a place with the connections that are not taken yet, the last one first.
    std::vector<Step> stepsFrom(int here, const Target &place, const std::vector<bool> &isTaken) const
    {
        std::vector<Step> steps;
        const auto connections = m_connectionsAt.find(keyOf(place));
        if (connections == m_connectionsAt.end())
            return steps;
        for (auto number = connections->second.rbegin(); number != connections->second.rend(); ++number) {
            if (!isTaken[std::size_t(*number)])
                steps.push_back({here, *number});
        }
        return steps;
    }

    Stop stopAfter(const Step &step, const std::vector<Reached> &reached) const
    {
        const snapshot::Connection &connection = m_job.connections().at(step.connection);
        const Target &before = reached[std::size_t(step.before)].stop.place;
        return keyOf(connection.fromTarget) == keyOf(before)
                   ? Stop{step.connection, connection.toTarget, connection.to}
                   : Stop{step.connection, connection.fromTarget, connection.from};
    }

    static Way wayTo(int last, const std::vector<Reached> &reached)
    {
        Way way;
        for (int number = last; number >= 0; number = reached[std::size_t(number)].before)
            way.push_back(reached[std::size_t(number)].stop);
        std::reverse(way.begin(), way.end());
        return way;
    }

    const JobSnapshot &m_job;
    std::map<Key, std::vector<int>> m_connectionsAt;
};

/// What is printed of a stop.
struct StopValues
{
    QString kind; ///< empty if the job does not have it
    QString id;
    QString type; ///< of a device
    QString sheet;
    QVariant x;
    QVariant y;
};

StopValues valuesOf(const JobSnapshot &job, const Target &place)
{
    if (place.kind == ElementKind::Devices) {
        const snapshot::Device &device = job.devices().at(place.position);
        return {QStringLiteral("device"),          device.id, device.type,
                job.sheets().at(device.holder).id, device.x,  device.y};
    }
    if (place.kind == ElementKind::Vertices) {
        const snapshot::Bend &bend = job.bends().at(place.position);
        return {QStringLiteral("bend"), bend.id, QString(), job.sheets().at(bend.holder).id, bend.x, bend.y};
    }
    return {};
}

QString connectionName(const JobSnapshot &job, const Stop &stop)
{
    return stop.connection < 0 ? QString() : job.connections().at(stop.connection).id;
}

QString textOf(const JobSnapshot &job, const Stop &stop)
{
    const StopValues values = valuesOf(job, stop.place);
    if (values.kind.isEmpty())
        return stop.tag.isEmpty() ? Program::tr("no device") : Program::tr("missing: %1").arg(stop.tag);
    if (stop.place.kind == ElementKind::Vertices)
        return Program::tr("%1, bend %2").arg(values.sheet, values.id);
    return values.type.isEmpty() ? Program::tr("%1, device %2").arg(values.sheet, values.id)
                                 : Program::tr("%1, device %2 (%3)").arg(values.sheet, values.id, values.type);
}

QString textOf(const JobSnapshot &job, const Way &way)
{
    QString text;
    for (const Stop &stop : way) {
        if (stop.connection >= 0)
            text += brokenLine(QLatin1String("    ") + Program::tr("connection %1").arg(connectionName(job, stop)), 6);
        text += brokenLine(textOf(job, stop), 2);
    }
    return text;
}

QByteArray csvOf(const JobSnapshot &job, const std::vector<Way> &ways)
{
    QByteArray text = "way,connection,stop,kind,sheet,id,type,x,y\n";
    int wayNumber = 0;
    for (const Way &way : ways) {
        ++wayNumber;
        int stopNumber = 0;
        for (const Stop &stop : way) {
            const StopValues values = valuesOf(job, stop.place);
            text += csvLine({wayNumber, connectionName(job, stop), ++stopNumber, values.kind, values.sheet, values.id,
                             values.type, values.x, values.y});
        }
    }
    return text;
}

QJsonObject jsonOf(const JobSnapshot &job, const Way &way)
{
    const auto textOrNull = [](const QString &text, bool isText) { return isText ? QJsonValue(text) : QJsonValue(); };
    QJsonArray stops;
    for (const Stop &stop : way) {
        const StopValues values = valuesOf(job, stop.place);
        const bool exists = !values.kind.isEmpty();
        stops.append(QJsonObject{
            {QStringLiteral("connection"), textOrNull(connectionName(job, stop), stop.connection >= 0)},
            {QStringLiteral("kind"), textOrNull(values.kind, exists)},
            {QStringLiteral("id"), textOrNull(values.id, exists)},
            {QStringLiteral("tag"), stop.tag},
            {QStringLiteral("type"), textOrNull(values.type, stop.place.kind == ElementKind::Devices)},
            {QStringLiteral("sheet"), textOrNull(values.sheet, exists)},
            {QStringLiteral("x"), QJsonValue::fromVariant(values.x)},
            {QStringLiteral("y"), QJsonValue::fromVariant(values.y)},
        });
    }
    return {{QStringLiteral("stops"), stops}};
}

} // namespace

ExitCode traceDevices(const CommandLine &line, const JobSnapshot &job, const QVector<int> &devices)
{
    const Network network(job);
    std::vector<Way> ways;
    QStringList unused;
    for (const int device : devices) {
        const std::vector<Way> found = network.waysFrom(device);
        ways.insert(ways.end(), found.begin(), found.end());
        if (found.empty())
            unused.append(job.sheets().at(job.devices().at(device).holder).id + QLatin1Char('/')
                          + job.devices().at(device).id);
    }
    if (line.isSet("json")) {
        return printJson(line.output(), "cabledoc-trace-device-1",
                         {{{QStringLiteral("withoutConnection"), QJsonArray::fromStringList(unused)}},
                          QStringLiteral("ways"),
                          int(ways.size()),
                          [&](int number) { return jsonOf(job, ways[std::size_t(number)]); }});
    }
    if (line.isSet("csv"))
        return printData(line.output(), csvOf(job, ways));
    QStringList texts;
    for (const Way &way : ways)
        texts.append(textOf(job, way));
    for (const QString &device : unused)
        texts.append(brokenLine(Program::tr("No connection: %1").arg(device), 2));
    return printText(line.output(), texts.join(QLatin1Char('\n')));
}
