#include "tablecolumns.h"

#include "documentattributes.h"
#include "jobattributes.h"
#include "jobwords.h"
#include "lengthestimate.h"
#include "qtcompat.h"
#include "tabletext.h"
#include "units.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// Calls a function with the attribute table of a kind. Releases have an empty one.
template <typename Use> decltype(auto) withAttributes(TableKind kind, Use use)
{
    switch (kind) {
    case TableKind::TestDefinitions:
        return use(testDefAttributes());
    case TableKind::Bundles:
        return use(bundledCableAttributes());
    case TableKind::Floors:
        return use(floorAttributes());
    case TableKind::Rooms:
        return use(roomAttributes());
    case TableKind::Ports:
        return use(portAttributes());
    case TableKind::VerticalRuns:
        return use(vertRunAttributes());
    case TableKind::Points:
    case TableKind::Bends:
        return use(pointAttributes());
    case TableKind::FloorTexts:
    case TableKind::SheetTexts:
        return use(freeTextAttributes());
    case TableKind::Sheets:
        return use(sheetAttributes());
    case TableKind::Devices:
        return use(deviceAttributes());
    case TableKind::Connections:
        return use(connectionAttributes());
    case TableKind::Cables:
        return use(plannedCableAttributes());
    case TableKind::ActivePorts:
        return use(activePortAttributes());
    case TableKind::Releases:
    case TableKind::Count:
        break;
    }
    static const AttributeTable<SheetFields> none{};
    return use(none);
}

struct ColumnText
{
    const char *name;
    Content content;
    QString attribute = QString();
};

QVector<ColumnText> columnTexts(TableKind kind)
{
    const ColumnText tag{"tag", Content::Tag};
    const ColumnText id{"id", Content::Id, words::Id};
    const ColumnText floor{"floor", Content::Floor};
    const ColumnText room{"room", Content::Room};
    const ColumnText sheet{"sheet", Content::Sheet};
    const ColumnText x{"x", Content::Position, words::X};
    const ColumnText y{"y", Content::Position, words::Y};
    const ColumnText use{"use", Content::Use, words::Use};
    const ColumnText iconScale{"icon_scale", Content::Number, words::IconScale};
    const ColumnText dropHeight{"drop_height", Content::Height, words::DropHeight};
    const ColumnText color{"color", Content::Color, words::Color};
    const ColumnText defaultType{"default_type", Content::Flag, words::DefaultType};
    const ColumnText cables{"cables", Content::CableCount};
    const QVector<ColumnText> text{
        {"text", Content::Text, words::Text},
        x,
        y,
        {"font", Content::Text, words::FontFamily},
        {"font_size", Content::Number, words::FontSize},
        {"bold", Content::Flag, words::Bold},
        {"italic", Content::Flag, words::Italic},
        color,
    };
    switch (kind) {
    case TableKind::TestDefinitions:
        return {id,
                {"pairs_in_use", Content::Text, words::InUse},
                {"data_rate", Content::Number, words::DataRate},
                {"snr", Content::Number, words::Snr},
                {"skew", Content::Number, words::Skew},
                {"shield", Content::Flag, words::Shield},
                {"length_constant", Content::Number, words::LengthConstant},
                {"max_length", Content::Height, words::MaxLength},
                {"category", Content::Number, words::CableCategory},
                color,
                defaultType,
                {"comment", Content::Text, words::Comment},
                {"expected", Content::Text, words::Expected}};
    case TableKind::Bundles:
        return {id, {"types", Content::Types}, color, defaultType};
    case TableKind::Floors:
        return {tag,
                id,
                {"ceiling_height", Content::Height, words::CeilingHeight},
                {"picture", Content::Text, words::Picture},
                {"picture_x", Content::PictureX, words::PictureX},
                {"picture_y", Content::PictureY, words::PictureY},
                {"picture_option", Content::PictureOption, words::BackgroundOption}};
    case TableKind::Rooms:
        return {tag,
                floor,
                id,
                x,
                y,
                {"width", Content::Position, words::Width},
                {"height", Content::Position, words::Height},
                {"name_x", Content::Position, words::NameX},
                {"name_y", Content::Position, words::NameY},
                {"show_name", Content::Number, words::ShowName},
                {"show_dimensions", Content::Number, words::ShowDimensions},
                {"layer", Content::Number, words::Layer}};
    case TableKind::Ports:
    case TableKind::VerticalRuns:
        return {tag, floor, room, id, use, x, y, dropHeight, iconScale, cables};
    case TableKind::Points:
        return {tag, floor, id, x, y};
    case TableKind::FloorTexts:
        return QVector<ColumnText>{tag, floor, id} + text;
    case TableKind::Sheets:
        return {tag, id};
    case TableKind::Devices:
        return {tag, sheet, id,        {"type", Content::Text, words::Type},
                x,   y,     iconScale, {"info", Content::Text, words::Info}};
    case TableKind::Bends:
        return {tag, sheet, id, x, y};
    case TableKind::SheetTexts:
        return QVector<ColumnText>{tag, sheet, id} + text;
    case TableKind::Connections:
        return {tag,
                id,
                {"type", Content::Text, words::Type},
                {"from_sheet", Content::EndSheet, words::From},
                {"from", Content::EndDevice, words::From},
                {"to_sheet", Content::EndSheet, words::To},
                {"to", Content::EndDevice, words::To}};
    case TableKind::Cables:
        return {tag,
                id,
                {"type", Content::Definition, words::Type},
                use,
                {"from_floor", Content::EndFloor, words::From},
                {"from_room", Content::EndRoom, words::From},
                {"from_port", Content::EndPort, words::From},
                {"to_floor", Content::EndFloor, words::To},
                {"to_room", Content::EndRoom, words::To},
                {"to_port", Content::EndPort, words::To},
                {"bundle", Content::Bundle, words::BundleName},
                {"bundle_number", Content::Text, words::BundleNum},
                {"bundle_group", Content::Text, words::BundleGroupNum},
                color,
                {"path", Content::Path, words::Path},
                {"connected", Content::Connected},
                {"disconnected", Content::Disconnected},
                {"status", Content::Status},
                {"length", Content::MeasuredLength},
                {"estimated_length", Content::EstimatedLength}};
    case TableKind::ActivePorts:
        return {tag,
                id,
                {"floor", Content::EndFloor, words::Port},
                {"room", Content::EndRoom, words::Port},
                {"port", Content::EndPort, words::Port}};
    case TableKind::Releases:
        return {{"id", Content::Id}, {"value", Content::ReleaseValue}};
    case TableKind::Count:
        break;
    }
    return {};
}

QVector<TableColumn> makeColumns(TableKind kind)
{
    QVector<TableColumn> columns;
    for (const ColumnText &column : columnTexts(kind)) {
        const QVector<AttributeRow> &rows = attributesOf(kind).rows();
        const auto row = std::find_if(rows.cbegin(), rows.cend(), [&column](const AttributeRow &attribute) {
            return attribute.name == column.attribute;
        });
        columns.append({QString::fromLatin1(column.name), column.content, row == rows.cend() ? nullptr : &*row});
    }
    return columns;
}

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

} // namespace

const AttributeList &attributesOf(TableKind kind)
{
    return withAttributes(kind, [](const auto &table) -> const AttributeList & { return table; });
}

const QVector<TableColumn> &columnsOf(TableKind kind)
{
    static const std::array<QVector<TableColumn>, std::size_t(TableKind::Count)> columns = [] {
        std::array<QVector<TableColumn>, std::size_t(TableKind::Count)> all;
        for (std::size_t number = 0; number < all.size(); ++number)
            all[number] = makeColumns(TableKind(number));
        return all;
    }();
    return columns[std::size_t(kind)];
}

TableKind tableOf(ElementKind kind)
{
    switch (kind) {
    case ElementKind::VerticalRuns:
        return TableKind::VerticalRuns;
    case ElementKind::Points:
        return TableKind::Points;
    case ElementKind::Devices:
        return TableKind::Devices;
    case ElementKind::Vertices:
        return TableKind::Bends;
    default:
        return TableKind::Ports;
    }
}

bool isPosition(Content content)
{
    return content == Content::Position || content == Content::PictureX || content == Content::PictureY;
}

bool isEnd(Content content)
{
    return content == Content::EndFloor || content == Content::EndRoom || content == Content::EndPort
           || content == Content::EndSheet || content == Content::EndDevice;
}

bool hasUnit(Content content)
{
    return isPosition(content) || content == Content::Height || content == Content::MeasuredLength
           || content == Content::EstimatedLength;
}

bool isNumeric(const TableColumn &column)
{
    return column.content == Content::Number || column.content == Content::CableCount || hasUnit(column.content);
}

bool isImported(Content content)
{
    return content != Content::CableCount && content != Content::Status && content != Content::MeasuredLength
           && content != Content::EstimatedLength;
}

bool isSearchable(Content content)
{
    switch (content) {
    case Content::Tag:
    case Content::Id:
    case Content::Text:
    case Content::Color:
    case Content::Use:
    case Content::Definition:
    case Content::Bundle:
    case Content::PictureOption:
    case Content::Types:
    case Content::ReleaseValue:
    case Content::Status:
        return true;
    default:
        return false;
    }
}

bool isName(Content content)
{
    return content == Content::Id || content == Content::Floor || content == Content::Room || content == Content::Sheet;
}

QString columnName(const TableColumn &column, TableUnit unit)
{
    if (!hasUnit(column.content) || unit == TableUnit::Pixels)
        return column.name;
    return column.name + (unit == TableUnit::Feet ? QLatin1String("_ft") : QLatin1String("_m"));
}

namespace {

template <typename Fields>
QString canonical(const AttributeTable<Fields> & /*table*/, const AttributeRow &attribute, const QString &text)
{
    Fields fields;
    attribute.parse(text, &fields);
    return attribute.text(&fields);
}

} // namespace

QString canonicalText(TableKind kind, const AttributeRow &attribute, const QString &text)
{
    if (attribute.parse == nullptr || attribute.text == nullptr)
        return text;
    return withAttributes(kind, [&](const auto &table) { return canonical(table, attribute, text); });
}

QString cableColor(const JobSnapshot &job, const QString &text, const QString &type)
{
    if (qtcompat::isColorName(text))
        return text;
    const int definition = job.definitionOfName(type);
    const QString ofType = definition < 0 ? QString() : job.definitions().at(definition).color;
    return qtcompat::isColorName(ofType) ? ofType : TestDefFields().color;
}

QString roundedText(double number)
{
    QString text = QString::number(number, 'f', 3);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

double feetInAPixel(const JobSnapshot &job, TableKind kind)
{
    const QString &entry = isOnSheet(kind) ? words::NetViewSettings : words::FloorPlanSettings;
    return feetInAPixel(ScaleSettings(job.scaleSettings().value(entry)));
}

QString missingScale(const JobSnapshot &job, TableKind kind, TableUnit unit)
{
    const QVector<TableColumn> &columns = columnsOf(kind);
    const bool hasPositions = std::any_of(columns.cbegin(), columns.cend(),
                                          [](const TableColumn &column) { return isPosition(column.content); });
    if (unit == TableUnit::Pixels || !hasPositions || feetInAPixel(job, kind) > 0.0)
        return QString();
    return isOnSheet(kind) ? TableText::tr("the sheets have no scale for feet or metres")
                           : TableText::tr("the floor plans have no scale for feet or metres");
}

TableReader::TableReader(const ElementNames &names, TableKind kind, Names shownNames)
    : m_names(names)
    , m_kind(kind)
    , m_shownNames(shownNames)
    , m_feetInAPixel(feetInAPixel(names.job(), kind))
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
