#include "trace.h"

#include "commandline.h"
#include "documents.h"
#include "namedelements.h"

using cabledoc::ElementKind;
using cabledoc::JobSnapshot;
using cabledoc::snapshot::Target;

namespace {

ExitCode traceRooms(const CommandLine &line, const JobSnapshot &job, const QVector<NamedElement> &rooms)
{
    QVector<Target> ports;
    for (const NamedElement &room : rooms) {
        const auto &range = job.rooms().at(room.element.position).ports;
        for (int port = range.first; port < range.end(); ++port)
            ports.append({ElementKind::Ports, port});
    }
    return traceCables(line, job, {}, ports);
}

ExitCode traceNamed(const CommandLine &line, const JobSnapshot &job, const QVector<NamedElement> &elements)
{
    QVector<int> positions;
    QVector<Target> places;
    for (const NamedElement &named : elements) {
        positions.append(named.element.position);
        places.append(named.element);
    }
    switch (elements.constFirst().element.kind) {
    case ElementKind::Cables:
        return traceCables(line, job, positions, {});
    case ElementKind::Rooms:
        return traceRooms(line, job, elements);
    case ElementKind::Devices:
        return traceDevices(line, job, positions);
    default:
        return traceCables(line, job, {}, places);
    }
}

/// Returns the ports, vertical runs and cables with the given name.
QVector<NamedElement> portsAndCablesNamed(const JobSnapshot &job, const QString &name)
{
    QVector<NamedElement> elements = portsNamed(job, name);
    for (NamedElement cable : cablesNamed(job, name)) {
        // The id of a port does not hide a cable.
        if (!elements.isEmpty())
            cable.fullName.prepend(QLatin1String("--cable "));
        elements.append(cable);
    }
    return elements;
}

/// A way to say what is traced.
struct Subject
{
    const char *option; ///< null for the argument
    QVector<NamedElement> (*named)(const JobSnapshot &job, const QString &name);
    QString noElement;
};

QVector<Subject> subjects()
{
    return {{nullptr, portsAndCablesNamed, Program::tr("there is no port, vertical run or cable \"%1\"")},
            {"cable", cablesNamed, Program::tr("there is no cable \"%1\"")},
            {"room", roomsNamed, Program::tr("there is no room \"%1\"")},
            {"device", devicesNamed, Program::tr("there is no network device \"%1\"")}};
}

QString nameFor(const CommandLine &line, const Subject &subject)
{
    return subject.option == nullptr ? line.argument(1) : line.value(subject.option);
}

} // namespace

ExitCode runTrace(const CommandLine &line)
{
    QVector<Subject> given;
    for (const Subject &subject : subjects()) {
        if (!nameFor(line, subject).isEmpty())
            given.append(subject);
    }
    if (given.size() != 1)
        return line.usageError(Program::tr("exactly one of PORT or CABLE, --cable, --room and --device is needed"));
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    const Subject &subject = given.constFirst();
    const QString name = nameFor(line, subject);
    const QVector<NamedElement> elements = subject.named(job, name);
    if (const ExitCode error = refuseUnclear(line.argument(0), name, elements, subject.noElement.arg(name)))
        return error;
    return traceNamed(line, job, elements);
}
