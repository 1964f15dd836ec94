#include "tablecolumns.h"

#include "documentattributes.h"
#include "jobattributes.h"
#include "jobwords.h"
#include "qtcompat.h"

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

} // namespace cabledoc
