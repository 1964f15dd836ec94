#include "namedelements.h"

#include "output.h"

#include <cabledoc/elementname.h>

using cabledoc::ElementKind;
using cabledoc::JobSnapshot;

namespace snapshot = cabledoc::snapshot;

namespace {

/// Returns the elements with the given name. The function returns the parts of the name of an element.
template <typename Elements, typename PartsOf>
QVector<NamedElement> named(const QString &name, ElementKind kind, const Elements &elements, PartsOf partsOf)
{
    const QStringList given = cabledoc::partsOfName(name);
    const QString &last = given.constLast();
    QVector<NamedElement> found;
    int position = -1;
    for (const auto &element : elements) {
        ++position;
        // Most elements have another id. Only the name of the room "Undefined" is empty.
        if (element.id != name && element.id != last && !last.isEmpty())
            continue;
        const QStringList parts = partsOf(element);
        if (element.id == name || parts.mid(parts.size() - given.size()) == given)
            found.append({{kind, position}, cabledoc::nameText(parts)});
    }
    return found;
}

QStringList partsOfRoom(const JobSnapshot &job, const snapshot::Room &room)
{
    // The room "Undefined" stands for no room.
    const bool isUndefined = room.element == QLatin1String("Undefined");
    return {job.floors().at(room.holder).id, isUndefined ? QString() : room.id};
}

template <typename Port> QStringList partsOfPort(const JobSnapshot &job, const Port &port)
{
    return partsOfRoom(job, job.rooms().at(port.holder)) + QStringList(port.id);
}

} // namespace

QVector<NamedElement> portsNamed(const JobSnapshot &job, const QString &name)
{
    const auto parts = [&job](const auto &port) { return partsOfPort(job, port); };
    return named(name, ElementKind::Ports, job.ports(), parts)
           + named(name, ElementKind::VerticalRuns, job.verticalRuns(), parts);
}

QVector<NamedElement> cablesNamed(const JobSnapshot &job, const QString &name)
{
    return named(name, ElementKind::Cables, job.cables(),
                 [](const snapshot::Cable &cable) { return QStringList(cable.id); });
}

QVector<NamedElement> roomsNamed(const JobSnapshot &job, const QString &name)
{
    return named(name, ElementKind::Rooms, job.rooms(),
                 [&job](const snapshot::Room &room) { return partsOfRoom(job, room); });
}

QVector<NamedElement> devicesNamed(const JobSnapshot &job, const QString &name)
{
    return named(name, ElementKind::Devices, job.devices(), [&job](const snapshot::Device &device) {
        return QStringList{job.sheets().at(device.holder).id, device.id};
    });
}

QString fullNameOf(const JobSnapshot &job, const snapshot::Target &port)
{
    const auto fullName = [&job](const auto &end) { return cabledoc::nameText(partsOfPort(job, end)); };
    return port.kind == ElementKind::Ports ? fullName(job.ports().at(port.position))
                                           : fullName(job.verticalRuns().at(port.position));
}

ExitCode refuseUnclear(const QString &fileName, const QString &name, const QVector<NamedElement> &elements,
                       const QString &noElement)
{
    if (elements.isEmpty())
        return fail(WrongUsage, fileName, noElement);
    QStringList names;
    for (const NamedElement &element : elements)
        names.append(element.fullName);
    names.removeDuplicates();
    if (names.size() == 1)
        return Done;
    const QString list = firstLines(fileName, int(names.size()),
                                    [&names](int number) { return QStringLiteral("  ") + names.at(number); });
    return fail(WrongUsage, fileName,
                Program::tr("\"%1\" has several meanings. Use one of these:").arg(name) + QLatin1Char('\n')
                    + list.chopped(1));
}
