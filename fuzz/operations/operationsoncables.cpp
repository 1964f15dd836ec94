#include "operations.h"

#include "jobsnapshot.h"
#include "randomjob.h"

#include <cmath>

Fields testDefOf(PlainJob *file, const QString &type)
{
    for (const PlainElement &definition : childrenOf(file->at({"TestDef_List"}))) {
        if (definition.has("id") && definition.text("id") == type)
            return fieldsOf(testDefAttributes(), &definition);
    }
    return fieldsOf(testDefAttributes(), nullptr);
}

PlainElement &addCable(Session *session, const Fields &fields, const Fields &results, int mode)
{
    static const QStringList colors{"#112233", "red", "#000000"};
    Fields stored = fields;
    if (!colors.contains(stored["color"]))
        stored["color"] = testDefOf(&session->file, stored["type"]).at("color");
    if (stored["use"] == "cable_box")
        stored["use"] = "TV";
    PlainElement &cable = appendNew(session, *session->file.at({"Cable_List"}), Kind::Cables, stored, mode);
    cable.add("Test_Results").attributes = results;
    return cable;
}

namespace {

QString someCable(Session *session)
{
    return session->choices.tag(session->file.tags(Kind::Cables));
}

QString someCableOrId(Session *session)
{
    return session->choices.oneIn(3) ? session->choices.id() : someCable(session);
}

QString someVertRun(Session *session)
{
    return session->choices.tag(session->file.tags(Kind::VertRuns));
}

/// Calls the form of addCable() that takes the given number of arguments, or the one that takes a record.
QString callAddCable(JobEditor &job, int arguments, const Fields &fields, const TestResults &results, int mode)
{
    const auto text = [&fields](const char *name) { return fields.at(name); };
    const QString tag = text("tag");
    const QString id = text("id");
    switch (arguments) {
    case 3:
        return job.addCable(tag, id, mode);
    case 4:
        return job.addCable(tag, id, text("use"), mode);
    case 5:
        return job.addCable(tag, id, text("use"), text("to"), mode);
    case 6:
        return job.addCable(tag, id, text("use"), text("to"), text("from"), mode);
    case 7:
        return job.addCable(tag, id, text("use"), text("to"), text("from"), text("type"), mode);
    case 8:
        return job.addCable(tag, id, text("use"), text("to"), text("from"), text("type"), results, mode);
    case 9:
        return job.addCable(tag, id, text("use"), text("to"), text("from"), text("type"), text("bundleName"),
                            text("bundleNum"), text("bundleGroupNum"), text("color"), entriesOf(text("path")), results,
                            mode);
    default:
        break;
    }
    Cable cable = recordOf<Cable>(fields);
    cable.setTestResults(results);
    return job.addCable(cable, mode);
}

void addOne(Session *session)
{
    Choices &choices = session->choices;
    const int mode = choices.number(5);
    const int arguments = 3 + choices.number(8);
    Fields fields = randomFields(choices, Kind::Cables);
    Fields results = fieldsOf(testResultsAttributes(), nullptr);
    if (arguments >= 8)
        results = randomFields(choices, testResultsAttributes());
    fields["tag"] = someCable(session);
    // Values that the shorter forms do not take are empty.
    const std::pair<const char *, int> givenFrom[] = {
        {"use", 4},   {"to", 5},  {"from", 6}, {"type", 7}, {"bundleName", 9}, {"bundleNum", 9}, {"bundleGroupNum", 9},
        {"color", 9}, {"path", 9}};
    for (const auto &[name, from] : givenFrom) {
        if (arguments < from)
            fields[name] = QString();
    }
    const QString answer = callAddCable(session->job, arguments, fields, recordOf<TestResults>(results), mode);
    const bool isRefused = (mode == 2 || mode == 3) && !isTag(fields["tag"]);
    if (isRefused || session->file.at({"Cable_List"}) == nullptr) {
        expectAnswer(answer, QString(), "what adding a cable returns when it fails");
        return;
    }
    expectAnswer(answer, addCable(session, fields, results, mode).text("id"), "the id of a new cable");
}

void putIntoVertRun(Session *session)
{
    const QString cable = someCable(session);
    const QString tag = someVertRun(session);
    const int way = session->choices.number(3);
    const QString list = QStringList{"connected", "disconnected", ""}.at(way);
    using J = JobEditor;
    const auto call = QVector<void (J::*)(const QString &, const QString &)>{
        &J::connectCableToVertRun, &J::disconnectCableFromVertRun, &J::removeCableFromVertRun};
    (session->job.*call.at(way))(cable, tag);
    PlainElement *vertRun = session->file.element(Kind::VertRuns, tag);
    if (vertRun == nullptr || (!list.isEmpty() && !session->file.exists(Kind::Cables, cable, true)))
        return;
    for (const QString attribute : {"connected", "disconnected"}) {
        QStringList cables = entriesOf(vertRun->text(attribute));
        const bool isListed = cables.contains(cable);
        if (attribute == list && !isListed)
            cables.append(cable);
        else if (attribute != list && isListed)
            cables.removeAll(cable);
        else
            continue;
        vertRun->attributes[attribute] = cables.join(',');
    }
}

// Tests

/// Returns the results of a cable and completes them. Returns the defaults if the cable is null.
Fields readResults(PlainElement *cable)
{
    PlainElement *results = childOf(cable, "Test_Results");
    complete(testResultsAttributes(), results);
    return fieldsOf(testResultsAttributes(), results);
}

void readCable(Session *session)
{
    const bool byTag = session->choices.oneIn(2);
    const QString name = byTag ? someCable(session) : session->choices.id();
    const Cable answer = byTag ? session->job.getCable(name) : session->job.getCableById(name);
    const Place place = session->file.first(Kind::Cables, byTag ? name : session->file.tagOfId(Kind::Cables, name));
    expectAnswer(fieldsOf(answer), session->file.record(Kind::Cables, place), "a cable");
    expectAnswer(fieldsOf(answer.testResults()), readResults(place.element), "the test results of a cable record");
}

void readTestResults(Session *session)
{
    const QString name = someCableOrId(session);
    const TestResults answer = session->job.getCableTestResults(name);
    expectAnswer(fieldsOf(answer), readResults(session->file.cable(name)), "the test results of a cable");
}

void setTestResults(Session *session)
{
    const QString name = someCableOrId(session);
    const Fields fields = randomFields(session->choices, testResultsAttributes());
    session->job.setCableTestResults(name, recordOf<TestResults>(fields));
    PlainElement *results = childOf(session->file.cable(name), "Test_Results");
    if (results == nullptr)
        return;
    for (const auto &[attribute, value] : fields) {
        if (results->has(attribute) || attribute == "software_version" || attribute == "serial")
            results->attributes[attribute] = value;
    }
}

void addResult(Session *session)
{
    Choices &choices = session->choices;
    const QString tag = choices.tag(session->file.tags(Kind::ActivePorts));
    const Fields fields = randomFields(choices, activeTestResultAttributes());
    QVector<QPair<QString, QString>> values;
    for (int i = choices.number(3); i > 0; --i) {
        const QString name = choices.id();
        values.append({name, choices.id()});
    }
    ActiveTestResult result = recordOf<ActiveTestResult>(fields);
    result.setValues(values);
    session->job.addActiveTestResult(tag, result);
    PlainElement *activePort = session->file.element(Kind::ActivePorts, tag);
    if (activePort == nullptr)
        return;
    PlainElement &added = activePort->add("ActiveTest_Result");
    added.attributes = fields;
    for (const auto &[name, value] : values)
        added.add("Value").attributes = {{"name", name}, {"value", value}};
}

void removeResult(Session *session)
{
    const QString tag = session->choices.tag(session->file.tags(Kind::ActivePorts));
    const QString time = session->choices.oneOf({"noon", "", "night"});
    session->job.removeActiveTestResult(tag, time);
    PlainElement *activePort = session->file.element(Kind::ActivePorts, tag);
    std::list<PlainElement> &results = childrenOf(activePort);
    for (auto result = results.begin(); result != results.end(); ++result) {
        if (result->text("time") == time) {
            results.erase(result);
            return;
        }
    }
}

// Lengths

constexpr double feetInAMeter = 3.2808399;

void expectLength(double answer, double expected, const char *what)
{
    const bool isSame = answer == expected || (std::isnan(answer) && std::isnan(expected))
                        || std::fabs(answer - expected) < 1e-6 * std::fabs(expected);
    expectAnswer(isSame ? textOf(expected) : textOf(answer), textOf(expected), what);
}

float rounded(float feet, bool metric)
{
    return metric ? std::round(float(feet / feetInAMeter) * 2.0F) / 2.0F : std::round(feet * 10.0F) / 10.0F;
}

void readLengths(Session *session)
{
    const QString name = someCableOrId(session);
    const int pair = session->choices.number(6) - 1;
    const bool metric = session->choices.oneIn(2);
    const float ofPair = session->job.getRoundedCableLength(name, pair, metric);
    const float corrected = session->job.getMaxRoundedCableLength(name, metric, false);
    const float uncorrected = session->job.getMaxRoundedCableLength(name, metric, true);
    PlainElement *cable = session->file.cable(name);
    readResults(cable);
    const PlainElement *element = childOf(cable, "Test_Results");
    const cable_struct results =
        element == nullptr ? cable_struct::untested() : JobEditor::stringToData(element->text("data"));
    const QString type = cable == nullptr ? QString() : cable->text("type");
    const double constant = wholePart(testDefOf(&session->file, type).at("length_constant")) / 100.0;
    int shortest = -1;
    for (const qint32 length : results.pair_length) {
        if (length > 0 && length < 60000 && (shortest < 0 || length < shortest))
            shortest = length;
    }
    const float expected = pair < 0 || pair > 3 ? 0.0F : rounded(float(results.pair_length[pair] / constant), metric);
    expectLength(double(ofPair), double(expected), "the length of a pair");
    expectLength(double(corrected), double(rounded(float(shortest / constant), metric)), "the length of a cable");
    const double feet = std::max(shortest, 0);
    expectLength(double(uncorrected), metric ? std::trunc(feet / feetInAMeter) : feet, "the reading of a cable");
}

/// A place on the way of a cable.
struct Stop
{
    QString tag;
    /// Empty if there is no such place.
    QString floor;
    double x = 0.0;
    double y = 0.0;
    double drop = 0.0;
};

class Lengths
{
public:
    explicit Lengths(PlainJob *file)
        : m_file(*file)
    {
        const Fields settings = readSettings(file, plainSettings().back(), "FloorPlan_Settings");
        const ScaleSettings scale = recordOf<ScaleSettings>(settings);
        if (scale.style() == 1 || scale.style() == 2)
            m_feetInAPixel = scale.scale() / (scale.isMetric() ? 12.0 : 1.0) / 96.0;
    }

    double estimated(PlainElement *cable, bool metric)
    {
        if (cable == nullptr || !(m_feetInAPixel > 0.0))
            return -1.0;
        QVector<Stop> way{endOf(cable->text("from"))};
        for (const QString &tag : entriesOf(cable->text("path")))
            way.append(stopOf(tag));
        way.append(endOf(cable->text("to")));
        double feet = way.constFirst().drop + way.constLast().drop;
        for (int i = 0; i < way.size(); ++i) {
            if (way.at(i).floor.isEmpty() || (i > 0 && !leadsTo(way.at(i - 1), way.at(i))))
                return -1.0;
            if (i > 0)
                feet += std::hypot(way.at(i).x - way.at(i - 1).x, way.at(i).y - way.at(i - 1).y) * m_feetInAPixel
                        + height(way.at(i - 1).floor, way.at(i).floor);
        }
        return metric ? feet / feetInAMeter : feet;
    }

private:
    bool leadsTo(const Stop &here, const Stop &there)
    {
        return here.floor == there.floor || m_file.exists(Kind::VertRuns, here.tag, true)
               || m_file.exists(Kind::VertRuns, there.tag, true);
    }

    Stop stopOf(const QString &tag)
    {
        if (!m_file.exists(Kind::Points, tag, true))
            return endOf(tag);
        const Fields point = m_file.record(Kind::Points, m_file.first(Kind::Points, tag));
        return {tag, point.at("holder"), point.at("x").toDouble(), point.at("y").toDouble(), 0.0};
    }

    Stop endOf(const QString &tag)
    {
        const Kind kind = m_file.exists(Kind::Ports, tag, true) ? Kind::Ports : Kind::VertRuns;
        if (!m_file.exists(kind, tag, true))
            return {};
        const Fields end = m_file.record(kind, m_file.first(kind, tag));
        return {tag, end.at("floor"), end.at("x").toDouble(), end.at("y").toDouble(), end.at("drop_height").toDouble()};
    }

    static int numberOf(const QString &floor) { return floor.split('_').value(1).toInt(); }

    /// Returns the height of the floors above the lower one, up to and including the upper one.
    double height(const QString &floorA, const QString &floorB)
    {
        const int numberA = numberOf(floorA);
        const int numberB = numberOf(floorB);
        const QString &upper = numberA < numberB ? floorB : floorA;
        double sum = 0.0;
        for (const Place &place : m_file.counted(Kind::Floors)) {
            const int number = numberOf(place.element->name);
            const bool isBetween = std::min(numberA, numberB) < number && number < std::max(numberA, numberB);
            if (numberA != numberB && (isBetween || place.element->name == upper))
                sum += m_file.record(Kind::Floors, place).at("ceiling_height").toDouble();
        }
        return sum;
    }

    PlainJob &m_file;
    double m_feetInAPixel = 0.0;
};

void estimateLengths(Session *session)
{
    const bool metric = session->choices.oneIn(2);
    const QMap<QString, double> answers = session->job.estimateCableLengths(metric);
    const cabledoc::JobSnapshot snapshot(session->job);
    Lengths lengths(&session->file);
    QStringList tags = session->file.tags(Kind::Cables);
    tags.sort();
    expectAnswer(QStringList(answers.keys()), tags, "the cables that have lengths");
    for (const QString &tag : tags + QStringList{"none"}) {
        const double expected = lengths.estimated(session->file.element(Kind::Cables, tag), metric);
        expectLength(answers.value(tag, -1.0), expected, "the estimated lengths");
        expectLength(session->job.estimateCableLength(tag, metric), expected, "an estimated length");
        const int position = snapshot.positionOfTag(cabledoc::ElementKind::Cables, tag);
        expectLength(snapshot.estimatedLength(position, metric), expected, "an estimated length of a snapshot");
    }
}

} // namespace

const Operations &cableOperations()
{
    static const Operations operations{addOne,       addOne,          addOne,         putIntoVertRun,
                                       readCable,    readTestResults, setTestResults, addResult,
                                       removeResult, readLengths,     estimateLengths};
    return operations;
}
