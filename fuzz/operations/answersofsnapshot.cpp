#include "answers.h"

#include "fuzzing.h"
#include "jobsnapshot.h"
#include "records.h"

using cabledoc::ElementKind;
using cabledoc::JobSnapshot;

namespace snapshot = cabledoc::snapshot;

namespace {

/// Compares all elements of a kind, and the searches for them.
template <typename Record, typename Items>
void compareKind(const JobSnapshot &job, ElementKind kind, const Items &items, Kind plainKind, PlainJob *file)
{
    const std::vector<Place> places = file->all(plainKind);
    expectAnswer(int(items.size()) == int(places.size()), true, "the number of elements");
    QStringList tags;
    QStringList ids{"none", ""};
    for (int position = 0; position < items.size(); ++position) {
        const auto &item = items.at(position);
        expectAnswer(fieldsOf(Record(item)), file->record(plainKind, places.at(std::size_t(position))), "an element");
        tags.append(item.element);
        ids.append(item.id);
    }
    for (const QString &tag : tags + QStringList{"none", ""})
        expectAnswer(textOf(job.positionOfTag(kind, tag)), textOf(int(tags.indexOf(tag))), "the element of a tag");
    for (const QString &id : ids) {
        const int position = job.positionOfId(kind, id);
        expectAnswer(position >= 0, file->exists(plainKind, id, false), "whether there is an element with an id");
        expectAnswer(position < 0 ? QString() : items.at(position).element, file->tagOfId(plainKind, id),
                     "the element of an id");
    }
}

/// Compares the place of an element that a cable names by its tag.
void compareTarget(const JobSnapshot &job, const snapshot::Target &target, const QString &tag, bool mayBePoint,
                   PlainJob *file)
{
    ElementKind kind = ElementKind::None;
    if (mayBePoint && file->exists(Kind::Points, tag, true))
        kind = ElementKind::Points;
    else if (file->exists(Kind::Ports, tag, true))
        kind = ElementKind::Ports;
    else if (file->exists(Kind::VertRuns, tag, true))
        kind = ElementKind::VerticalRuns;
    expectAnswer(target.kind == kind, true, "the kind of a place");
    expectAnswer(textOf(target.position), textOf(kind == ElementKind::None ? -1 : job.positionOfTag(kind, tag)),
                 "a place");
}

template <typename Elements>
void compareCablesAt(const JobSnapshot &job, ElementKind kind, const Elements &ends, PlainJob *file)
{
    for (int position = 0; position < ends.size(); ++position) {
        const QString tag = ends.at(position).element;
        const bool isHidden = job.positionOfTag(kind, tag) != position
                              || (kind == ElementKind::VerticalRuns && file->exists(Kind::Ports, tag, true));
        QStringList tags;
        for (const int cable : job.cablesAt({kind, position}))
            tags.append(job.cables().at(cable).element);
        expectAnswer(tags, isHidden ? QStringList() : file->cablesEndingAt({tag}), "the cables at an end");
    }
}

void compareCables(const JobSnapshot &job, PlainJob *file)
{
    const std::vector<Place> places = file->all(Kind::Cables);
    for (int position = 0; position < job.cables().size(); ++position) {
        const snapshot::Cable &cable = job.cables().at(position);
        const PlainElement *results = childOf(places.at(std::size_t(position)).element, "Test_Results");
        const TestResults answer = job.testResults(position);
        expectAnswer(fieldsOf(answer), fieldsOf(testResultsAttributes(), results), "the results of a cable");
        expectAnswer(members(static_cast<const cabledoc::MeasurementFields &>(answer.fields())) == members(cable.test),
                     true, "the measurements of a cable");
        compareTarget(job, cable.fromTarget, cable.from, false, file);
        compareTarget(job, cable.toTarget, cable.to, false, file);
        for (int i = 0; i < cable.path.size(); ++i)
            compareTarget(job, cable.pathTargets.at(i), cable.path.at(i), true, file);
    }
    compareCablesAt(job, ElementKind::Ports, job.ports(), file);
    compareCablesAt(job, ElementKind::VerticalRuns, job.verticalRuns(), file);
}

} // namespace

void compareSnapshot(const JobEditor &document, PlainJob *file)
{
    const JobSnapshot job(document);
    using E = ElementKind;
    compareKind<Floor>(job, E::Floors, job.floors(), Kind::Floors, file);
    compareKind<Room>(job, E::Rooms, job.rooms(), Kind::Rooms, file);
    compareKind<Port>(job, E::Ports, job.ports(), Kind::Ports, file);
    compareKind<Point>(job, E::Points, job.points(), Kind::Points, file);
    compareKind<FreeText>(job, E::FloorFreeTexts, job.floorTexts(), Kind::FloorTexts, file);
    compareKind<Sheet>(job, E::Sheets, job.sheets(), Kind::Sheets, file);
    compareKind<Device>(job, E::Devices, job.devices(), Kind::Devices, file);
    compareKind<Point>(job, E::Vertices, job.bends(), Kind::Vertices, file);
    compareKind<FreeText>(job, E::FreeTexts, job.sheetTexts(), Kind::Texts, file);
    compareKind<DeviceConnection>(job, E::Connections, job.connections(), Kind::Connections, file);
    compareKind<ActivePort>(job, E::ActivePorts, job.activePorts(), Kind::ActivePorts, file);
    struct PlannedCable : Cable
    {
        explicit PlannedCable(const snapshot::Cable &cable)
            : Cable(Fields{cable, TestResults()})
        {
        }
    };
    compareKind<PlannedCable>(job, E::Cables, job.cables(), Kind::Cables, file);
    struct PlacedRun : VertRun
    {
        explicit PlacedRun(const snapshot::VerticalRun &run)
            : VertRun(run, run)
        {
        }
    };
    compareKind<PlacedRun>(job, E::VerticalRuns, job.verticalRuns(), Kind::VertRuns, file);
    compareCables(job, file);
}
