#include "tablereader.h"

#include "jobattributes.h"
#include "jobwords.h"
#include "lengthestimate.h"
#include "tabletext.h"
#include "units.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// Returns the elements at the ends of a cable, a connection or an active port.
snapshot::Target targetOf(const JobSnapshot &job, TableKind kind, const QString &attribute, int position)
{
    if (kind == TableKind::Cables) {
        const snapshot::Cable &cable = job.cables().at(position);
        return attribute == words::From ? cable.fromTarget : cable.toTarget;
    }
    if (kind == TableKind::Connections) {
        const snapshot::Connection &connection = job.connections().at(position);
        return attribute == words::From ? connection.fromTarget : connection.toTarget;
    }
    const int port = job.activePorts().at(position).portPosition;
    return port < 0 ? snapshot::Target() : snapshot::Target{ElementKind::Ports, port};
}

bool isOnSheet(TableKind kind)
{
    return kind == TableKind::Devices || kind == TableKind::Bends || kind == TableKind::SheetTexts;
}

/// Returns whether the text of a number is that of "inf" or "nan", as damaged files have them.
bool isNotFinite(const QString &number)
{
    return number.endsWith(QLatin1Char('f')) || number.endsWith(QLatin1Char('n'));
}

/// Returns the part of the name of an end that a column holds, counted from its last part.
int partFromEnd(Content content)
{
    switch (content) {
    case Content::EndRoom:
    case Content::EndSheet:
        return 1;
    case Content::EndFloor:
        return 2;
    default:
        return 0;
    }
}

/// Returns the text of a number in a unit: at most three digits after the point, and no zeros at its end.
QString roundedText(double number)
{
    QString text = QString::number(number, 'f', 3);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

/// Returns the length of a pixel of floor plans or sheets in feet. Returns 0 if they have no scale.
double feetInAPixelOf(const JobSnapshot &job, TableKind kind)
{
    const QString &entry = isOnSheet(kind) ? words::NetViewSettings : words::FloorPlanSettings;
    return feetInAPixel(ScaleSettings(job.scaleSettings().value(entry)));
}

} // namespace

QString missingScale(const JobSnapshot &job, TableKind kind, TableUnit unit)
{
    const QVector<TableColumn> &columns = columnsOf(kind);
    const bool hasPositions = std::any_of(columns.cbegin(), columns.cend(),
                                          [](const TableColumn &column) { return isPosition(column.content); });
    if (unit == TableUnit::Pixels || !hasPositions || feetInAPixelOf(job, kind) > 0.0)
        return QString();
    return isOnSheet(kind) ? TableText::tr("the sheets have no scale for feet or metres")
                           : TableText::tr("the floor plans have no scale for feet or metres");
}

TableReader::TableReader(const ElementNames &names, TableKind kind, Names shownNames)
    : m_names(names)
    , m_kind(kind)
    , m_shownNames(shownNames)
    , m_feetInAPixel(feetInAPixelOf(names.job(), kind))
{
}

double TableReader::pixelIn(TableUnit unit) const
{
    switch (unit) {
    case TableUnit::Feet:
        return m_feetInAPixel;
    case TableUnit::Metres:
        return m_feetInAPixel / feetInAMeter;
    case TableUnit::Pixels:
        break;
    }
    return 1.0;
}

QString TableReader::text(const TableColumn &column, TableUnit unit, int position) const
{
    if (position < 0)
        return QString();
    if (isEnd(column.content))
        return endText(column, position);
    const JobSnapshot &job = m_names.job();
    const ElementView element = elementOf(job, m_kind, position);
    const auto attributeText = [&] {
        const QString stored = column.attribute->text(element.fields);
        return isNumeric(column) && isNotFinite(stored) ? column.attribute->defaultText : stored;
    };
    const auto pixelText = [&](const QString &pixels) {
        if (unit == TableUnit::Pixels)
            return pixels;
        return m_feetInAPixel > 0.0 ? roundedText(pixels.toDouble() * pixelIn(unit)) : QString();
    };
    switch (column.content) {
    case Content::Tag:
        return element.tag;
    case Content::Id:
        return element.id;
    case Content::Floor:
    case Content::Room:
    case Content::Sheet: {
        const bool isOuter = column.content == Content::Floor && holderKind(m_kind) == TableKind::Rooms;
        return m_names.partOf(m_kind, position, isOuter ? 2 : 1);
    }
    case Content::Text:
    case Content::Number:
    case Content::Flag:
    case Content::Definition:
    case Content::Bundle:
        return attributeText();
    case Content::Color:
        return m_kind == TableKind::Cables ? cableColor(job, attributeText(), job.cables().at(position).type)
                                           : attributeText();
    case Content::Use:
        return m_kind == TableKind::Cables ? storedCableUse(attributeText()) : attributeText();
    case Content::Position:
        return pixelText(attributeText());
    case Content::Height: {
        const QString feet = attributeText();
        return unit == TableUnit::Metres ? roundedText(feet.toDouble() / feetInAMeter) : feet;
    }
    case Content::EndFloor:
    case Content::EndRoom:
    case Content::EndPort:
    case Content::EndSheet:
    case Content::EndDevice:
        break;
    case Content::Path:
        return pathText(position);
    case Content::PictureX:
        return pixelText(toText(job.floors().at(position).picturePosition.x()));
    case Content::PictureY:
        return pixelText(toText(job.floors().at(position).picturePosition.y()));
    case Content::PictureOption:
        return job.floors().at(position).pictureOption;
    case Content::Connected:
    case Content::Disconnected:
        return runsText(position, column.content == Content::Connected);
    case Content::Types: {
        QStringList names;
        for (const QString &type : job.bundles().at(position).types)
            names.append(nameText({type}));
        return nameListText(names);
    }
    case Content::ReleaseValue:
        return *static_cast<const QString *>(element.fields);
    case Content::CableCount:
        return toText(job.cableCountAt({elementKind(m_kind), position}));
    case Content::Status:
        return job.cables().at(position).test.status;
    case Content::MeasuredLength: {
        const float length = job.measuredLength(position, unit == TableUnit::Metres);
        return length < 0 ? QString() : QString::number(double(length), 'g', 7);
    }
    case Content::EstimatedLength: {
        if (m_feetInAPixel <= 0.0)
            return QString();
        const double length = job.estimatedLength(position, unit == TableUnit::Metres);
        return length < 0 ? QString() : roundedText(length);
    }
    }
    return QString();
}

/// Returns the floor, room, port, sheet or device at which a cable or connection ends. It is empty if the end does not
/// exist.
QString TableReader::endText(const TableColumn &column, int position) const
{
    const snapshot::Target target = targetOf(m_names.job(), m_kind, column.attribute->name, position);
    if (!target.exists())
        return QString();
    if (m_shownNames == Names::Unique && !m_names.isNamed(tableOf(target.kind), target.position))
        return QString();
    return m_names.partOf(tableOf(target.kind), target.position, partFromEnd(column.content));
}

/// Returns the names of what a cable passes. Elements without a name are left out.
QString TableReader::pathText(int position) const
{
    QStringList names;
    for (const snapshot::Target &target : m_names.job().cables().at(position).pathTargets) {
        if (target.exists() && m_names.isNamed(tableOf(target.kind), target.position))
            names.append(nameText(m_names.partsOf(tableOf(target.kind), target.position)));
    }
    return nameListText(names);
}

QString TableReader::runsText(int cable, bool isConnected) const
{
    if (m_names.job().verticalRuns().isEmpty())
        return QString();
    if (m_runsOfCables[0].isEmpty())
        findRuns();
    return nameListText(m_runsOfCables[isConnected ? 0 : 1].at(cable));
}

void TableReader::findRuns() const
{
    for (QVector<QStringList> &runs : m_runsOfCables)
        runs.resize(m_names.job().cables().size());
    int position = 0;
    for (const snapshot::VerticalRun &run : m_names.job().verticalRuns()) {
        const int number = position++;
        if (!m_names.isNamed(TableKind::VerticalRuns, number))
            continue;
        const QString name = nameText(m_names.partsOf(TableKind::VerticalRuns, number));
        for (const auto &[cables, runs] : {std::make_pair(&run.connectedCables, &m_runsOfCables[0]),
                                           std::make_pair(&run.disconnectedCables, &m_runsOfCables[1])}) {
            for (const int cable : *cables) {
                // A run may name a cable twice, or one that the job does not have.
                if (cable >= 0 && !(*runs)[cable].endsWith(name))
                    (*runs)[cable].append(name);
            }
        }
    }
}

} // namespace cabledoc
