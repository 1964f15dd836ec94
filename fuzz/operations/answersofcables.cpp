#include "answers.h"

#include "records.h"

namespace {

using TagsWith = QStringList (JobEditor::*)(const QString &) const;

QStringList valuesOf(const std::vector<Place> &places, const QString &attribute)
{
    QStringList values{"none", ""};
    for (const Place &place : places)
        values.append(place.element->text(attribute));
    values.removeDuplicates();
    return values;
}

QString statusOf(PlainElement *cable)
{
    const PlainElement *results = childOf(cable, "Test_Results");
    return results == nullptr ? "UNTESTED" : results->text("status", "UNTESTED");
}

/// Returns the tags of the cables for which a condition holds.
template <typename Condition> QStringList tagsWhere(const std::vector<Place> &cables, Condition condition)
{
    QStringList tags;
    for (const Place &cable : cables) {
        if (condition(cable.element))
            tags.append(cable.element->name);
    }
    return tags;
}

void compareCablesWith(const JobEditor &job, const std::vector<Place> &cables)
{
    const struct
    {
        const char *attribute;
        TagsWith tagsWith;
        bool missingIsEmpty;
    } rows[] = {{"type", &JobEditor::getCablesByType, true},
                {"use", &JobEditor::getCablesByUse, false},
                {"bundleName", &JobEditor::getCablesByBundle, false},
                {"bundleGroupNum", &JobEditor::getCablesByBundleGroup, false}};
    for (const auto &row : rows) {
        for (const QString &value : valuesOf(cables, row.attribute)) {
            const QStringList tags = tagsWhere(cables, [&](PlainElement *cable) {
                return (row.missingIsEmpty || cable->has(row.attribute)) && cable->text(row.attribute) == value;
            });
            expectAnswer((job.*row.tagsWith)(value), tags, row.attribute);
            if (row.tagsWith == &JobEditor::getCablesByBundleGroup)
                expectAnswer(job.bundleGroupNumExists(value), !tags.isEmpty(), "whether there is a bundle group");
        }
    }
}

void compareTests(const JobEditor &job, PlainJob *file, const std::vector<Place> &cables)
{
    QStringList statuses{"none", "UNTESTED", ""};
    for (const Place &cable : cables)
        statuses.append(statusOf(cable.element));
    statuses.removeDuplicates();
    for (const QString &status : statuses) {
        const QStringList tags =
            tagsWhere(cables, [&status](PlainElement *cable) { return statusOf(cable) == status; });
        expectAnswer(job.getCablesByStatus(status), tags, "the cables of a status");
    }
    for (const QString &tag : file->tags(Kind::Cables) + QStringList{"none", ""}) {
        PlainElement *cable = file->element(Kind::Cables, tag);
        expectAnswer(job.getCableStatus(tag), cable == nullptr ? QString() : statusOf(cable), "the status of a cable");
        expectAnswer(job.cableIsInBundle(tag), cable != nullptr && !cable->text("bundleName").isEmpty(),
                     "whether a cable is in a bundle");
    }
}

void compareEnds(const JobEditor &job, PlainJob *file)
{
    QStringList ends = valuesOf(file->all(Kind::Cables), "to") + valuesOf(file->all(Kind::Cables), "from")
                       + file->tags(Kind::Ports) + file->tags(Kind::VertRuns);
    ends.removeDuplicates();
    for (const QString &end : ends) {
        expectAnswer(job.getCablesByPort(end), file->cablesEndingAt({end}), "the cables of a port");
        for (const bool byTag : {false, true}) {
            const bool exists = file->exists(Kind::Ports, end, byTag) || file->exists(Kind::VertRuns, end, byTag);
            expectAnswer(job.portOrVertRunExists(end, byTag), exists, "whether there is an end");
        }
    }
    for (const QString &floor : file->tags(Kind::Floors) + QStringList{"none", ""})
        expectAnswer(job.getCablesByFloor(floor), file->cablesEndingAt(file->endsOnFloor(floor)),
                     "the cables of a floor");
    for (const Place &vertRun : file->counted(Kind::VertRuns)) {
        const QStringList passing =
            entriesOf(vertRun.element->text("connected")) + entriesOf(vertRun.element->text("disconnected"));
        for (const QString &cable : file->tags(Kind::Cables) + QStringList{"none", ""})
            expectAnswer(job.isCableInVertRun(cable, vertRun.element->name), passing.contains(cable),
                         "whether a cable passes a vertical run");
    }
}

void compareActivePorts(const JobEditor &job, PlainJob *file)
{
    for (const QString &tag : file->tags(Kind::ActivePorts) + QStringList{"none", ""}) {
        PlainElement *activePort = file->element(Kind::ActivePorts, tag);
        const QVector<ActiveTestResult> answers = job.getActiveTestResults(tag);
        auto answer = answers.begin();
        QStringList times;
        for (PlainElement &result : childrenOf(activePort)) {
            expectAnswer(answer != answers.end(), true, "whether there is another test result");
            expectAnswer(fieldsOf(*answer), fieldsOf(activeTestResultAttributes(), &result), "a test result");
            QStringList values;
            for (const PlainElement &value : result.children)
                values += {value.text("name"), value.text("value")};
            QStringList answeredValues;
            for (const auto &[name, value] : answer->values())
                answeredValues += {name, value};
            expectAnswer(answeredValues, values, "the values of a test result");
            times.append(result.text("time"));
            ++answer;
        }
        expectAnswer(answer == answers.end(), true, "whether these are all test results");
        for (const QString &time : times + QStringList{"none", ""})
            expectAnswer(job.activePortTestResultExists(tag, time), times.contains(time), "whether there is a result");
    }
}

} // namespace

void compareCables(const JobEditor &job, PlainJob *file)
{
    const std::vector<Place> cables = file->all(Kind::Cables);
    PlainElement *activePorts = file->at({"ActiveNetworkTest_List", "ActivePort_List"});
    for (const bool byTag : {false, true}) {
        expectAnswer(job.getCables(byTag), namesIn(file->at({"Cable_List"}), byTag), "all cables");
        expectAnswer(job.getConnections(byTag), namesIn(file->at({"Connection_List"}), byTag), "all connections");
        expectAnswer(job.getActivePorts(byTag), namesIn(activePorts, byTag), "all active ports");
    }
    compareCablesWith(job, cables);
    compareTests(job, file, cables);
    compareEnds(job, file);
    for (const Place &connection : file->counted(Kind::Connections))
        expectAnswer(textOf(job.getConnectionType(connection.element->name)),
                     textOf(connection.element->text("type").toInt()), "the type of a connection as a number");
    compareActivePorts(job, file);
}
