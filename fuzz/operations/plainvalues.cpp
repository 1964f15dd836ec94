#include "plainvalues.h"

#include "bkxmleditor.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

const std::vector<PlainKind> &plainKinds()
{
    using A = PlainAttribute;
    static const PlainAttributes point{{"id", Value::Text, ""}, {"x", Value::Real, "-1"}, {"y", Value::Real, "-1"}};
    static const PlainAttributes port{{"id", Value::Text, ""},          {"x", Value::Real, "-1"},
                                      {"y", Value::Real, "-1"},         {"use", Value::Text, ""},
                                      {"icon_scale", Value::Real, "1"}, {"drop_height", Value::Real, "0"}};
    static const PlainAttributes vertRun = [] {
        PlainAttributes attributes = port;
        attributes.push_back({"connected", Value::List, ""});
        attributes.push_back({"disconnected", Value::List, ""});
        return attributes;
    }();
    static const PlainAttributes text{
        {"id", Value::Text, ""},    {"text", Value::Text, ""},    {"x", Value::Real, "-1"},
        {"y", Value::Real, "-1"},   {"font", Value::Text, ""},    {"font_size", Value::Real, "12"},
        {"bold", Value::Flag, "0"}, {"italic", Value::Flag, "0"}, {"color", Value::Text, "#000000"}};
    static const PlainAttributes cable{{"id", Value::Text, ""},
                                       {"use", Value::Text, ""},
                                       {"to", Value::Text, ""},
                                       {"from", Value::Text, ""},
                                       {"type", Value::Text, ""},
                                       {"bundleName", Value::Text, ""},
                                       {"bundleNum", Value::Text, ""},
                                       {"bundleGroupNum", Value::Text, ""},
                                       {"color", Value::Text, ""},
                                       {"path", Value::List, ""},
                                       {"default_type", Value::Flag, "0", A::Optional}};
    static const PlainAttributes floor{
        {"id", Value::Text, ""}, {"pic", Value::Text, ""}, {"ceiling_height", Value::Real, "8", A::Completed}};
    static const PlainAttributes room{{"id", Value::Text, ""},
                                      {"x", Value::Whole, "-1"},
                                      {"y", Value::Whole, "-1"},
                                      {"width", Value::Whole, "-1"},
                                      {"height", Value::Whole, "-1"},
                                      {"namex", Value::Whole, "0"},
                                      {"namey", Value::Whole, "0"},
                                      {"layer", Value::Whole, "3", A::Completed},
                                      {"show_name", Value::Whole, "3", A::Completed},
                                      {"show_dimensions", Value::Whole, "3", A::Completed}};
    static const PlainAttributes device{{"id", Value::Text, ""},          {"type", Value::Text, ""},
                                        {"x", Value::Real, "-1"},         {"y", Value::Real, "-1"},
                                        {"icon_scale", Value::Real, "1"}, {"info", Value::Text, ""}};
    static const PlainAttributes connection{
        {"id", Value::Text, ""}, {"to", Value::Text, ""}, {"from", Value::Text, ""}, {"type", Value::Text, ""}};
    static const std::vector<PlainKind> kinds{
        {Kind::Cables, "Cable_List", "Cable", cable},
        {Kind::Connections, "Connection_List", "Connection", connection},
        {Kind::ActivePorts, "ActivePort_List", "ActivePort", {{"id", Value::Text, ""}, {"port", Value::Text, ""}}},
        {Kind::Floors, "Floor_List", "FFloor_", floor},
        {Kind::Sheets, "Sheet_List", "SSheet_", {{"id", Value::Text, ""}}},
        {Kind::Rooms, "Room_List", "Room", room},
        {Kind::Ports, "Port_List", "Port", port},
        {Kind::VertRuns, "VerticalRun_List", "VertRun", vertRun},
        {Kind::Points, "Point_List", "Point", point},
        {Kind::FloorTexts, "FreeText_List", "TText", text},
        {Kind::Devices, "Device_List", "Device", device},
        {Kind::Vertices, "Vertice_List", "Vertice", point},
        {Kind::Texts, "FreeText_List", "Text", text},
    };
    return kinds;
}

const PlainKind &plainKind(Kind kind)
{
    return plainKinds().at(std::size_t(kind));
}

const PlainAttributes &testResultsAttributes()
{
    using A = PlainAttribute;
    static const PlainAttributes attributes{{"status", Value::Text, "UNTESTED"},
                                            {"time", Value::Text, ""},
                                            {"software_version", Value::Text, "", A::Completed},
                                            {"serial", Value::Text, "", A::Completed},
                                            {"data", Value::Block, QString(96, 'F'), A::Completed},
                                            {"bert_errors", Value::Whole, "-1", A::Completed},
                                            {"echo", Value::Curve, "", A::Completed},
                                            {"next", Value::Curve, "", A::Completed},
                                            {"chan", Value::Curve, "", A::Completed}};
    return attributes;
}

const PlainAttributes &testDefAttributes()
{
    static const PlainAttributes attributes{{"id", Value::Text, ""},
                                            {"expected", Value::Block, QString(96, 'F')},
                                            {"in_use", Value::Pairs, "1111"},
                                            {"data_rate", Value::Whole, "0"},
                                            {"SNR", Value::Whole, "0"},
                                            {"skew", Value::Whole, "0"},
                                            {"shield", Value::Flag, "0"},
                                            {"length_constant", Value::Float, "15000"},
                                            {"max_length", Value::Float, "330"},
                                            {"comment", Value::Text, ""},
                                            {"cable_category", Value::Whole, "-1"},
                                            {"default_type", Value::Flag, "0"},
                                            {"color", Value::Text, "#000000"}};
    return attributes;
}

const PlainAttributes &addressAttributes()
{
    static const PlainAttributes attributes{{"address1", Value::Text, ""}, {"address2", Value::Text, ""},
                                            {"city", Value::Text, ""},     {"state", Value::Text, ""},
                                            {"zipcode", Value::Text, ""},  {"country", Value::Text, ""}};
    return attributes;
}

const PlainAttributes &activeTestResultAttributes()
{
    static const PlainAttributes attributes{{"time", Value::Text, ""},
                                            {"status", Value::Text, ""},
                                            {"link_speed", Value::Whole, "0"},
                                            {"duplex", Value::Text, ""},
                                            {"address", Value::Text, ""}};
    return attributes;
}

namespace {

PlainAttributes allCompleted(PlainAttributes attributes)
{
    for (PlainAttribute &attribute : attributes)
        attribute.use = PlainAttribute::Completed;
    return attributes;
}

} // namespace

const std::vector<PlainSettings> &plainSettings()
{
    const QString letter = "Letter: 8.5 in. x 11 in.";
    static const std::vector<PlainSettings> settings{
        {"PrintSettings_List",
         {"JobInfo_Settings", "NetView_Settings", "Inventory_Settings", "FloorPlan_Settings", "TestSched_Settings",
          "DetailedCable_Settings", "JobNotes_Settings", "ActiveNetworkTestResults_Settings"},
         allCompleted({{"paper_size", Value::Text, letter},
                       {"orientation", Value::Whole, "1"},
                       {"print_zoom", Value::Whole, "100"},
                       {"fit_to_across", Value::Whole, "1"},
                       {"fit_to_down", Value::Whole, "1"},
                       {"print_zoom_style", Value::Whole, "0"}})},
        {"PageSettings_List",
         {"NetView_Settings", "FloorPlan_Settings"},
         allCompleted({{"page_size", Value::Text, letter},
                       {"page_standard", Value::Text, "Standard"},
                       {"orientation", Value::Whole, "1"},
                       {"page_size_style", Value::Whole, "0"},
                       {"page_units", Value::Whole, "0"},
                       {"custom_height", Value::Real, "8.5"},
                       {"custom_width", Value::Real, "11"}})},
        {"ScaleSettings_List",
         {"NetView_Settings", "FloorPlan_Settings"},
         allCompleted({{"predefined_scale", Value::Text, "1\" = 20'0\""},
                       {"predefined_style", Value::Text, "English"},
                       {"width_units", Value::Whole, "0"},
                       {"height_units", Value::Whole, "0"},
                       {"custom_height", Value::Real, "1"},
                       {"custom_width", Value::Real, "1"},
                       {"style", Value::Whole, "0"}})},
    };
    return settings;
}

QString plainNumber(double number)
{
    char text[32];
    for (int digits = 6; digits <= 17; ++digits) {
        std::snprintf(text, sizeof text, "%.*g", digits, number);
        if (QByteArray(text).toDouble() == number)
            break;
    }
    return QString::fromLatin1(text);
}

int wholePart(const QString &text)
{
    using Limits = std::numeric_limits<int>;
    const double number = double(text.toFloat());
    if (std::isnan(number))
        return 0;
    return int(std::min(std::max(number, double(Limits::min())), double(Limits::max())));
}

QString canonical(Value value, const QString &text)
{
    switch (value) {
    case Value::Whole:
        return QString::number(text.toInt());
    case Value::Real:
        return plainNumber(text.toDouble());
    case Value::Flag:
        return text == "1" ? "1" : "0";
    case Value::Float:
        return plainNumber(double(text.toFloat()));
    case Value::Pairs: {
        // Flags that the text lacks are "1".
        QString flags = "1111";
        for (int i = 0; i < 4 && i < text.size() && (text.at(i) == '0' || text.at(i) == '1'); ++i)
            flags[i] = text.at(i);
        return flags;
    }
    case Value::Block:
        return BKXMLEditor::dataToString(BKXMLEditor::stringToData(text));
    case Value::Curve:
        return BKXMLEditor::responseDataToString(BKXMLEditor::responseStringToData(text));
    case Value::Text:
    case Value::List:
        break;
    }
    return text;
}

Fields fieldsOf(const PlainAttributes &attributes, const PlainElement *element)
{
    Fields fields;
    for (const PlainAttribute &attribute : attributes) {
        const QString text = element == nullptr ? attribute.missing : element->text(attribute.name, attribute.missing);
        fields[attribute.name] = canonical(attribute.value, text);
    }
    return fields;
}

Fields newFields(const PlainAttributes &attributes, const Fields &fields)
{
    Fields result;
    for (const PlainAttribute &attribute : attributes) {
        if (attribute.use != PlainAttribute::Optional)
            result[attribute.name] = fields.at(attribute.name);
    }
    return result;
}

void complete(const PlainAttributes &attributes, PlainElement *element)
{
    for (const PlainAttribute &attribute : attributes) {
        if (element != nullptr && attribute.use == PlainAttribute::Completed)
            element->attributes.emplace(attribute.name, attribute.missing);
    }
}

QStringList entriesOf(const QString &text)
{
    return text.isEmpty() ? QStringList() : text.split(',');
}
