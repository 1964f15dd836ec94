#include "commandline.h"
#include "csv.h"
#include "lengths.h"
#include "namedelements.h"
#include "output.h"
#include "textlines.h"
#include "trace.h"

#include <cabledoc/cableroute.h>

#include <QtCore/QJsonArray>

#include <algorithm>

using namespace cabledoc;

namespace {

/// A cable with which a trace begins.
struct Start
{
    int cable;
    RouteDirection direction;
};

/// Finds the chains of cables that a trace prints. Each chain is printed once.
class Starts
{
public:
    explicit Starts(const JobSnapshot &job)
        : m_job(job)
        , m_isTraced(std::size_t(job.cables().size()), false)
    {
    }

    void addCable(int cable) { add(cable, {}); }

    /// Adds the cables that end at or pass the places, in the order of the places.
    void addPlaces(const QVector<snapshot::Target> &places)
    {
        std::vector<bool> isUsed(std::size_t(places.size()), false);
        for (const auto &[place, cable] : cablesAt(places)) {
            isUsed[std::size_t(place)] = true;
            add(cable, places.at(place));
        }
        for (int place = 0; place < places.size(); ++place) {
            if (!isUsed[std::size_t(place)])
                m_unused.append(fullNameOf(m_job, places.at(place)));
        }
    }

    const QVector<Start> &starts() const { return m_starts; }
    /// Returns the full names of the places without a cable.
    const QStringList &unused() const { return m_unused; }

private:
    /// Adds the chain of a cable. If it ends at the place, it will begin there.
    void add(int cable, const snapshot::Target &place)
    {
        if (m_isTraced[std::size_t(cable)])
            return;
        const CableChain chain = chainOf(m_job, cable);
        for (const CableRoute &route : chain.routes)
            m_isTraced[std::size_t(route.cable)] = true;
        const auto isPlace = [&place](const RouteStation &station) {
            return station.place.kind == place.kind && station.place.position == place.position;
        };
        const bool isBackward = place.exists() && isPlace(chain.routes.constLast().stations.constLast())
                                && !isPlace(chain.routes.constFirst().stations.constFirst());
        m_starts.append({cable, isBackward ? RouteDirection::Backward : RouteDirection::Forward});
    }

    /// Returns pairs of the number of a place and a cable that ends at or passes it.
    std::vector<std::pair<int, int>> cablesAt(const QVector<snapshot::Target> &places) const
    {
        std::vector<int> numberOfPort(std::size_t(m_job.ports().size()), -1);
        std::vector<int> numberOfRun(std::size_t(m_job.verticalRuns().size()), -1);
        for (int number = 0; number < places.size(); ++number) {
            auto &numbers = places.at(number).kind == ElementKind::Ports ? numberOfPort : numberOfRun;
            numbers[std::size_t(places.at(number).position)] = number;
        }
        std::vector<std::pair<int, int>> cables;
        const auto take = [&](const snapshot::Target &place, int cable) {
            int number = -1;
            if (place.kind == ElementKind::Ports)
                number = numberOfPort[std::size_t(place.position)];
            else if (place.kind == ElementKind::VerticalRuns)
                number = numberOfRun[std::size_t(place.position)];
            if (number >= 0)
                cables.emplace_back(number, cable);
        };
        int position = 0;
        for (const snapshot::Cable &cable : m_job.cables()) {
            take(cable.fromTarget, position);
            take(cable.toTarget, position);
            for (const snapshot::Target &place : cable.pathTargets)
                take(place, position);
            ++position;
        }
        std::sort(cables.begin(), cables.end());
        return cables;
    }

    const JobSnapshot &m_job;
    std::vector<bool> m_isTraced;
    QVector<Start> m_starts;
    QStringList m_unused;
};

QString kindName(ElementKind kind)
{
    switch (kind) {
    case ElementKind::Ports:
        return QStringLiteral("port");
    case ElementKind::VerticalRuns:
        return QStringLiteral("verticalRun");
    case ElementKind::Points:
        return QStringLiteral("point");
    default:
        return {};
    }
}

QString floorName(const JobSnapshot &job, const RouteStation &station)
{
    return station.floor < 0 ? QString() : job.floors().at(station.floor).id;
}

QString roomName(const JobSnapshot &job, const RouteStation &station)
{
    // The room "Undefined" stands for no room.
    const bool isInRoom = station.room >= 0 && job.rooms().at(station.room).element != QLatin1String("Undefined");
    return isInRoom ? job.rooms().at(station.room).id : QString();
}

// Text

QString stationText(const JobSnapshot &job, const RouteStation &station)
{
    if (!station.place.exists())
        return station.tag.isEmpty() ? Program::tr("no port") : Program::tr("missing: %1").arg(station.tag);
    QStringList words{floorName(job, station), roomName(job, station)};
    if (station.place.kind == ElementKind::Points)
        words.append(Program::tr("point %1").arg(station.id));
    else if (station.place.kind == ElementKind::Ports)
        words.append(Program::tr("port %1").arg(station.id));
    else
        words.append(Program::tr("vertical run %1").arg(station.id));
    words.removeAll(QString());
    return words.join(QLatin1String(", ")).simplified();
}

QString partText(const CableRoute &route, const RoutePart &part)
{
    const bool isKnown = part.feet.has_value();
    switch (part.kind) {
    case RoutePart::Drop:
        return Program::tr("drop");
    case RoutePart::BetweenFloors:
        return isKnown ? Program::tr("between the floors") : Program::tr("between the floors, without a vertical run");
    case RoutePart::Straight:
        break;
    }
    const bool isOnPlan = route.stations.at(part.from).place.exists() && route.stations.at(part.to).place.exists();
    return isKnown || !isOnPlan ? Program::tr("straight on") : Program::tr("straight on, the floor plan has no scale");
}

QString sumText(double feet, bool isComplete, bool metric)
{
    const QString length = lengthText(inUnit(feet, metric)) + QLatin1Char(' ') + lengthUnit(metric);
    return isComplete ? length : Program::tr("at least %1").arg(length);
}

class TextWriter
{
public:
    TextWriter(const JobSnapshot &job, bool metric)
        : m_job(job)
        , m_metric(metric)
    {
    }

    QString textOf(const CableChain &chain) const
    {
        QString text;
        for (const CableRoute &route : chain.routes)
            text += textOf(route, &route == &chain.routes.constFirst() ? chain.othersAtBegin : 0,
                           &route == &chain.routes.constLast() ? chain.othersAtEnd : 0);
        if (chain.routes.size() > 1)
            text += Program::tr("%1 cables: %2")
                        .arg(QString::number(chain.routes.size()), sumText(chain.feet, chain.isComplete, m_metric))
                    + QLatin1Char('\n');
        if (chain.isRing)
            text += Program::tr("The last cable leads back to the first one.") + QLatin1Char('\n');
        return text;
    }

private:
    QString textOf(const CableRoute &route, int othersAtBegin, int othersAtEnd) const
    {
        const snapshot::Cable &cable = m_job.cables().at(route.cable);
        QStringList words{Program::tr("Cable %1").arg(cable.id), cable.type, cable.use, cable.test.status};
        words.removeAll(QString());
        QString text = brokenLine(words.join(QLatin1String(", ")).simplified(), 2);
        text += lineOf(route.stations.constFirst()) + lineOf(othersAtBegin);
        const int last = int(route.stations.size()) - 1;
        int reached = 0;
        for (const RoutePart &part : route.parts) {
            // The last station stands below its drop.
            if (part.from != reached && part.from != last) {
                reached = part.from;
                text += lineOf(route.stations.at(reached));
            }
            text += lineOf(route, part);
        }
        text += lineOf(route.stations.constLast()) + lineOf(othersAtEnd);
        return text + QLatin1String("  = ") + sumText(route.feet, route.isComplete, m_metric) + QLatin1Char('\n');
    }

    QString lineOf(const RouteStation &station) const
    {
        return brokenLine(QLatin1String("  ") + stationText(m_job, station), 4);
    }

    static QString lineOf(int others)
    {
        return others == 0 ? QString()
                           : QLatin1String("  ") + Program::tr("(other cables that end here: %1)").arg(others)
                                 + QLatin1Char('\n');
    }

    QString lineOf(const CableRoute &route, const RoutePart &part) const
    {
        constexpr int width = 11;
        const QString length = part.feet ? lengthText(inUnit(*part.feet, m_metric)) : QStringLiteral("?");
        return brokenLine(length.rightJustified(width) + QLatin1String("  ") + partText(route, part), width + 2);
    }

    const JobSnapshot &m_job;
    bool m_metric;
};

// CSV

QByteArray csvOf(const JobSnapshot &job, int number, const CableRoute &route, bool metric)
{
    const auto convert = [metric](const std::optional<double> &feet) {
        return feet ? lengthValue(inUnit(*feet, metric)) : QVariant();
    };
    const snapshot::Cable &cable = job.cables().at(route.cable);
    // The lengths that stand in the rows of the stations.
    std::vector<QVariant> straight(std::size_t(route.stations.size()));
    std::vector<QVariant> betweenFloors(straight.size());
    std::vector<QVariant> drop(straight.size());
    for (const RoutePart &part : route.parts) {
        auto &lengths = part.kind == RoutePart::Drop       ? drop
                        : part.kind == RoutePart::Straight ? straight
                                                           : betweenFloors;
        lengths[std::size_t(part.to)] = convert(part.feet);
    }
    QByteArray lines;
    for (int i = 0; i < route.stations.size(); ++i) {
        const RouteStation &station = route.stations.at(i);
        const auto row = std::size_t(i);
        const bool exists = station.place.exists();
        lines += csvLine({number, cable.id, cable.type, cable.use, cable.test.status, i + 1,
                          kindName(station.place.kind), floorName(job, station), roomName(job, station),
                          exists ? station.id : QString(), exists ? QVariant(station.position.x()) : QVariant(),
                          exists ? QVariant(station.position.y()) : QVariant(), straight[row], betweenFloors[row],
                          drop[row], convert(route.feet), route.isComplete});
    }
    return lines;
}

// JSON

QJsonObject jsonOf(const JobSnapshot &job, const RouteStation &station)
{
    const bool exists = station.place.exists();
    const QString room = roomName(job, station);
    return {{QStringLiteral("kind"), exists ? QJsonValue(kindName(station.place.kind)) : QJsonValue()},
            {QStringLiteral("id"), exists ? QJsonValue(station.id) : QJsonValue()},
            {QStringLiteral("tag"), station.tag},
            {QStringLiteral("floor"), station.floor < 0 ? QJsonValue() : floorName(job, station)},
            {QStringLiteral("room"), room.isEmpty() ? QJsonValue() : QJsonValue(room)},
            {QStringLiteral("x"), exists ? QJsonValue(station.position.x()) : QJsonValue()},
            {QStringLiteral("y"), exists ? QJsonValue(station.position.y()) : QJsonValue()}};
}

QJsonValue jsonLength(const std::optional<double> &feet, bool metric)
{
    return feet ? QJsonValue::fromVariant(lengthValue(inUnit(*feet, metric))) : QJsonValue();
}

QJsonObject jsonOf(const JobSnapshot &job, const CableRoute &route, bool metric)
{
    static const QMap<RoutePart::Kind, QString> kinds{{RoutePart::Drop, QStringLiteral("drop")},
                                                      {RoutePart::Straight, QStringLiteral("straight")},
                                                      {RoutePart::BetweenFloors, QStringLiteral("betweenFloors")}};
    QJsonArray stations;
    for (const RouteStation &station : route.stations)
        stations.append(jsonOf(job, station));
    QJsonArray parts;
    for (const RoutePart &part : route.parts) {
        parts.append(QJsonObject{{QStringLiteral("kind"), kinds.value(part.kind)},
                                 {QStringLiteral("from"), part.from},
                                 {QStringLiteral("to"), part.to},
                                 {QStringLiteral("length"), jsonLength(part.feet, metric)}});
    }
    const snapshot::Cable &cable = job.cables().at(route.cable);
    return {{QStringLiteral("id"), cable.id},
            {QStringLiteral("tag"), cable.element},
            {QStringLiteral("type"), cable.type},
            {QStringLiteral("use"), cable.use},
            {QStringLiteral("status"), cable.test.status},
            {QStringLiteral("stations"), stations},
            {QStringLiteral("parts"), parts},
            {QStringLiteral("length"), jsonLength(route.feet, metric)},
            {QStringLiteral("complete"), route.isComplete}};
}

QJsonObject jsonOf(const JobSnapshot &job, const CableChain &chain, bool metric)
{
    QJsonArray cables;
    for (const CableRoute &route : chain.routes)
        cables.append(jsonOf(job, route, metric));
    return {{QStringLiteral("cables"), cables},
            {QStringLiteral("length"), jsonLength(chain.feet, metric)},
            {QStringLiteral("complete"), chain.isComplete},
            {QStringLiteral("ring"), chain.isRing},
            {QStringLiteral("othersAtBegin"), chain.othersAtBegin},
            {QStringLiteral("othersAtEnd"), chain.othersAtEnd}};
}

QByteArray csvHeading()
{
    return "chain,cable,type,use,status,station,kind,floor,room,id,x,y,straight,between_floors,drop,cable_length,"
           "complete\n";
}

} // namespace

ExitCode traceCables(const CommandLine &line, const JobSnapshot &job, const QVector<int> &cables,
                     const QVector<snapshot::Target> &places)
{
    const bool metric = line.isSet("metric");
    Starts traced(job);
    for (const int cable : cables)
        traced.addCable(cable);
    traced.addPlaces(places);
    const QVector<Start> &starts = traced.starts();
    const int count = int(starts.size());
    const auto chain = [&](int number) { return chainOf(job, starts.at(number).cable, starts.at(number).direction); };

    if (line.isSet("json")) {
        const QJsonObject object{{QStringLiteral("lengthUnit"), lengthUnit(metric)},
                                 {QStringLiteral("withoutCable"), QJsonArray::fromStringList(traced.unused())}};
        return printJson(line.output(), "cabledoc-trace-1", {object, QStringLiteral("chains"), count, [&](int number) {
                                                                 return jsonOf(job, chain(number), metric);
                                                             }});
    }
    if (line.isSet("csv")) {
        QByteArray text = csvHeading();
        for (int number = 0; number < count; ++number) {
            for (const CableRoute &route : chain(number).routes)
                text += csvOf(job, number + 1, route, metric);
        }
        return printData(line.output(), text);
    }
    const TextWriter writer(job, metric);
    QStringList texts;
    for (int number = 0; number < count; ++number)
        texts.append(writer.textOf(chain(number)));
    QString unused;
    for (const QString &place : traced.unused())
        unused += brokenLine(Program::tr("No cable: %1").arg(place), 2);
    texts.append(unused);
    texts.removeAll(QString());
    return printText(line.output(), texts.join(QLatin1Char('\n')));
}
