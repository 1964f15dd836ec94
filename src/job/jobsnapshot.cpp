#include "jobsnapshot_p.h"

#include "cablelength.h"
#include "jobeditor_p.h"
#include "jobwords.h"
#include "numbers.h"
#include "readtestdetails.h"
#include "units.h"

#include <algorithm>

namespace cabledoc {

JobSnapshot::JobSnapshot()
    : d(std::make_shared<Data>())
{
}

JobSnapshot JobSnapshot::read(const QString &fileName, qint64 maximumFileSize)
{
    std::optional<FlatTree> tree = xmlfile::readCurrent(fileName, {words::Job}, maximumFileSize);
    if (tree)
        return JobSnapshot(dataOf(std::move(*tree)));
    // The document converts older files, reads everything that is XML, and tells what is wrong with a file.
    const std::shared_ptr<JobEditor> job = JobEditorPrivate::newDocument();
    job->setMaximumFileSize(maximumFileSize);
    JobEditorPrivate::of(*job).document.lineNumbers = xmlfile::LineNumbers::Read;
    if (job->Load(fileName))
        return JobSnapshot(*job);
    const auto data = std::make_shared<Data>();
    data->error = job->error();
    return JobSnapshot(data);
}

JobSnapshot::JobSnapshot(const BKXMLEditor &document)
    : d(dataOf(FlatTree::fromDocument(Document::of(document).tree().document())))
{
}

const QString &JobSnapshot::error() const
{
    return d->error;
}

const QVector<snapshot::Floor> &JobSnapshot::floors() const
{
    return d->floors;
}

const QVector<snapshot::Room> &JobSnapshot::rooms() const
{
    return d->rooms;
}

const QVector<snapshot::Port> &JobSnapshot::ports() const
{
    return d->ports;
}

const QVector<snapshot::VerticalRun> &JobSnapshot::verticalRuns() const
{
    return d->verticalRuns;
}

const QVector<snapshot::Point> &JobSnapshot::points() const
{
    return d->points;
}

const QVector<snapshot::FreeText> &JobSnapshot::floorTexts() const
{
    return d->floorTexts;
}

const QVector<snapshot::Sheet> &JobSnapshot::sheets() const
{
    return d->sheets;
}

const QVector<snapshot::Device> &JobSnapshot::devices() const
{
    return d->devices;
}

const QVector<snapshot::Bend> &JobSnapshot::bends() const
{
    return d->bends;
}

const QVector<snapshot::FreeText> &JobSnapshot::sheetTexts() const
{
    return d->sheetTexts;
}

const QVector<snapshot::Connection> &JobSnapshot::connections() const
{
    return d->connections;
}

const QVector<snapshot::Cable> &JobSnapshot::cables() const
{
    return d->cables;
}

const QVector<snapshot::ActivePort> &JobSnapshot::activePorts() const
{
    return d->activePorts;
}

const QVector<snapshot::Definition> &JobSnapshot::definitions() const
{
    return d->definitions;
}

const QVector<snapshot::Bundle> &JobSnapshot::bundles() const
{
    return d->bundles;
}

const ContractorDataFields &JobSnapshot::contractor() const
{
    return d->contractor;
}

const SiteDataFields &JobSnapshot::site() const
{
    return d->site;
}

const QString &JobSnapshot::notes() const
{
    return d->notes;
}

const QMap<QString, QString> &JobSnapshot::releases() const
{
    return d->releases;
}

const QMap<QString, PrintSettingsFields> &JobSnapshot::printSettings() const
{
    return d->printSettings;
}

const QMap<QString, PageSettingsFields> &JobSnapshot::pageSettings() const
{
    return d->pageSettings;
}

const QMap<QString, ScaleSettingsFields> &JobSnapshot::scaleSettings() const
{
    return d->scaleSettings;
}

bool JobSnapshot::hasRepeatedTags(ElementKind kind) const
{
    return d->hasRepeatedTags[std::size_t(kind)];
}

int JobSnapshot::positionOfTag(ElementKind kind, const QString &tag) const
{
    return d->positionOfTag(kind, tag);
}

int JobSnapshot::positionOfId(ElementKind kind, const QString &id) const
{
    return d->positionOfId(kind, id);
}

int JobSnapshot::definitionOfName(const QString &name) const
{
    return d->definitionNames.find(name, idsIn(d->definitions));
}

int JobSnapshot::bundleOfName(const QString &name) const
{
    return d->bundleNames.find(name, idsIn(d->bundles));
}

QVector<int> JobSnapshot::cablesAt(const snapshot::Target &end) const
{
    const CablesOfEnds &ends = d->cablesOfEnds(end.kind);
    const snapshot::Range range = ends.cablesOf(end.position);
    return QVector<int>(ends.cables.begin() + range.first, ends.cables.begin() + range.end());
}

int JobSnapshot::cableCountAt(const snapshot::Target &end) const
{
    return d->cablesOfEnds(end.kind).cablesOf(end.position).count;
}

namespace {

template <typename Fields> Fields fieldsIn(const AttributeTable<Fields> &table, FlatNode element)
{
    FlatAttributes attributes;
    attributes.read(element);
    return table.read(attributes);
}

TestDetails detailsIn(FlatNode test)
{
    FlatAttributes attributes;
    attributes.read(test);
    return readTestDetails(test, attributes.attribute(words::Time),
                           [](const auto &table, FlatNode element) { return fieldsIn(table, element); });
}

} // namespace

FlatNode JobSnapshot::Data::resultsOf(int cable) const
{
    return cable < 0 || cable >= cables.size() ? FlatNode() : results[std::size_t(cable)];
}

QVector<FlatNode> JobSnapshot::Data::historyOf(int cable) const
{
    QVector<FlatNode> tests;
    if (cable < 0 || cable >= cables.size())
        return tests;
    for (const FlatNode &test : ChildElements(histories[std::size_t(cable)])) {
        if (test.hasName(words::EarlierTest))
            tests.append(test);
    }
    return tests;
}

TestResults JobSnapshot::testResults(int cable) const
{
    return TestResults(fieldsIn(testResultsAttributes(), d->resultsOf(cable)));
}

TestDetails JobSnapshot::testDetails(int cable) const
{
    return detailsIn(d->resultsOf(cable));
}

int JobSnapshot::earlierTestCount(int cable) const
{
    return int(d->historyOf(cable).size());
}

QVector<CableTest> JobSnapshot::testHistory(int cable) const
{
    QVector<CableTest> tests;
    for (const FlatNode &test : d->historyOf(cable))
        tests.append({TestResults(fieldsIn(testResultsAttributes(), test)), detailsIn(test)});
    return tests;
}

float JobSnapshot::measuredLength(int cable, bool metric) const
{
    if (cable < 0 || cable >= d->cables.size())
        return -1.0F;
    const snapshot::Cable &measured = d->cables.at(cable);
    const int reading = shortestReading(measured.test.results);
    if (reading < 0)
        return -1.0F;
    const bool isDefined = measured.definition >= 0;
    const double lengthConstant =
        double(isDefined ? d->definitions.at(measured.definition).lengthConstant : TestDefFields().lengthConstant);
    return shownLength(correctedLength(reading, truncated(lengthConstant)), metric);
}

double JobSnapshot::estimatedLength(int cable, bool metric) const
{
    if (cable < 0 || cable >= d->cables.size())
        return -1.0;
    const std::optional<double> feet = d->estimate.length(d->placesOf(d->cables.at(cable)));
    if (!feet)
        return -1.0;
    return metric ? *feet / feetInAMeter : *feet;
}

const CablesOfEnds &JobSnapshot::Data::cablesOfEnds(ElementKind kind) const
{
    static const CablesOfEnds none;
    if (kind == ElementKind::Ports)
        return cablesOfPorts;
    return kind == ElementKind::VerticalRuns ? cablesOfRuns : none;
}

PassedPlaces JobSnapshot::Data::placesOf(const snapshot::Cable &cable) const
{
    PassedPlaces places;
    places.reserve(std::size_t(cable.pathTargets.size()) + 2);
    places.push_back(placeOf(cable.fromTarget));
    for (const snapshot::Target &passed : cable.pathTargets)
        places.push_back(placeOf(passed));
    places.push_back(placeOf(cable.toTarget));
    return places;
}

PassedPlace JobSnapshot::Data::placeOf(const snapshot::Target &target) const
{
    // The tag counts: a port or point with the tag of a vertical run leads to other floors too.
    const auto isVerticalRun = [this](const QString &tag) {
        return positionOfTag(ElementKind::VerticalRuns, tag) >= 0;
    };
    if (target.kind == ElementKind::Points) {
        const snapshot::Point &point = points.at(target.position);
        return {point.parent, point.x, point.y, 0.0, isVerticalRun(point.element)};
    }
    if (target.kind == ElementKind::Ports) {
        const snapshot::Port &port = ports.at(target.position);
        return {port.floor, port.x, port.y, port.dropHeight, isVerticalRun(port.element)};
    }
    if (!target.exists())
        return {};
    const snapshot::VerticalRun &run = verticalRuns.at(target.position);
    return {run.floor, run.x, run.y, run.dropHeight, true};
}

namespace {

template <typename Items> bool areEqual(const Items &a, const Items &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto &itemA, const auto &itemB) {
        using Fields = typename Items::value_type::Fields;
        return itemA.holder == itemB.holder
               && members(static_cast<const Fields &>(itemA)) == members(static_cast<const Fields &>(itemB));
    });
}

template <typename Fields> bool areEqual(const QMap<QString, Fields> &a, const QMap<QString, Fields> &b)
{
    return a.keys() == b.keys()
           && std::equal(a.begin(), a.end(), b.begin(),
                         [](const Fields &one, const Fields &other) { return members(one) == members(other); });
}

} // namespace

bool operator==(const JobSnapshot &a, const JobSnapshot &b)
{
    const auto haveEqual = [&](const auto member) { return areEqual((*a.d).*member, (*b.d).*member); };
    using D = JobSnapshot::Data;
    const auto sameFloorPictures = [&] {
        return std::equal(a.floors().begin(), a.floors().end(), b.floors().begin(),
                          [](const snapshot::Floor &one, const snapshot::Floor &other) {
                              return one.picturePosition == other.picturePosition
                                     && one.pictureOption == other.pictureOption;
                          });
    };
    const auto sameResults = [&] {
        for (int cable = 0; cable < a.cables().size(); ++cable) {
            if (a.testResults(cable) != b.testResults(cable) || a.testDetails(cable) != b.testDetails(cable)
                || a.testHistory(cable) != b.testHistory(cable))
                return false;
        }
        return true;
    };
    return haveEqual(&D::floors) && haveEqual(&D::rooms) && haveEqual(&D::ports) && haveEqual(&D::verticalRuns)
           && haveEqual(&D::points) && haveEqual(&D::floorTexts) && haveEqual(&D::sheets) && haveEqual(&D::devices)
           && haveEqual(&D::bends) && haveEqual(&D::sheetTexts) && haveEqual(&D::connections) && haveEqual(&D::cables)
           && haveEqual(&D::activePorts) && haveEqual(&D::definitions) && haveEqual(&D::bundles)
           && haveEqual(&D::printSettings) && haveEqual(&D::pageSettings) && haveEqual(&D::scaleSettings)
           && members(a.contractor()) == members(b.contractor()) && members(a.site()) == members(b.site())
           && a.notes() == b.notes() && a.releases() == b.releases() && sameFloorPictures() && sameResults();
}

} // namespace cabledoc
