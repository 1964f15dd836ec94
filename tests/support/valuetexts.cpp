#include "valuetexts.h"

namespace {

template <typename Record, typename Get, typename Set> Field<Record> field(const char *name, Get get, Set set)
{
    using Value = std::decay_t<std::invoke_result_t<Get, const Record &>>;
    return {name, [get](const Record &record) { return textOf(Value(std::invoke(get, record))); },
            [set](Record *record, const QString &text) { std::invoke(set, record, valueOf<Value>(text)); }};
}

/// Returns a field that is a record.
template <typename Record, typename Get, typename Set> Field<Record> inner(const char *name, Get get, Set set)
{
    const Field<Record> plain = field<Record>(name, get, set);
    return {name, [plain](const Record &record) { return '{' + plain.get(record) + '}'; },
            [plain](Record *record, const QString &text) { plain.set(record, text.mid(1, text.size() - 2)); }};
}

/// Returns a field of a test definition that has a digit for each of the four pairs.
template <typename Get, typename Set> Field<TestDef> digits(const char *name, Get get, Set set)
{
    const auto text = [get](const TestDef &definition) {
        QString digits;
        for (int pair = 0; pair < 4; ++pair)
            digits += QString::number(get(definition, pair));
        return digits;
    };
    return {name, text, [set](TestDef *definition, const QString &digits) {
                for (int pair = 0; pair < 4; ++pair)
                    set(definition, pair, digits.at(pair).digitValue());
            }};
}

} // namespace

#define FIELD(name, get, set) field<R>(name, &R::get, &R::set)
#define INNER(name, get, set) inner<R>(name, &R::get, &R::set)
#define FIELDS_OF(Record, ...)                                                                                         \
    template <> const QVector<Field<Record>> &fieldsOf()                                                               \
    {                                                                                                                  \
        using R = Record;                                                                                              \
        static const QVector<Field<R>> fields{__VA_ARGS__};                                                            \
        return fields;                                                                                                 \
    }

FIELDS_OF(Address, FIELD("address1", address1, setAddress1), FIELD("address2", address2, setAddress2),
          FIELD("city", city, setCity), FIELD("state", state, setState), FIELD("zipcode", zipcode, setZipcode),
          FIELD("country", country, setCountry))

FIELDS_OF(ContractorData, FIELD("tester", tester, setTester), FIELD("company", company, setCompany),
          FIELD("email", email, setEmail), FIELD("phone", phone, setPhone), FIELD("logo", logo, setLogo),
          INNER("address", address, setAddress))

FIELDS_OF(SiteData, FIELD("phone", phone, setPhone), FIELD("jobid", jobID, setJobID),
          FIELD("company", company, setCompany), FIELD("email", email, setEmail), FIELD("contact", contact, setContact),
          INNER("address", address, setAddress))

FIELDS_OF(PrintSettings, FIELD("paper_size", paperSize, setPaperSize),
          FIELD("orientation", orientation, setOrientation), FIELD("print_zoom", printZoom, setPrintZoom),
          FIELD("fit_to_across", fitToAcross, setFitToAcross), FIELD("fit_to_down", fitToDown, setFitToDown),
          FIELD("print_zoom_style", printZoomStyle, setPrintZoomStyle))

FIELDS_OF(PageSettings, FIELD("page_size", pageSize, setPageSize),
          FIELD("page_standard", pageStandard, setPageStandard), FIELD("orientation", orientation, setOrientation),
          FIELD("page_size_style", pageSizeStyle, setPageSizeStyle), FIELD("page_units", pageUnits, setPageUnits),
          FIELD("custom_height", customHeight, setCustomHeight), FIELD("custom_width", customWidth, setCustomWidth))

FIELDS_OF(ScaleSettings, FIELD("predefined_scale", predefinedScale, setPredefinedScale),
          FIELD("predefined_style", predefinedStyle, setPredefinedStyle),
          FIELD("width_units", widthUnits, setWidthUnits), FIELD("height_units", heightUnits, setHeightUnits),
          FIELD("custom_height", customHeight, setCustomHeight), FIELD("custom_width", customWidth, setCustomWidth),
          FIELD("style", style, setStyle))

FIELDS_OF(BundledCable, FIELD("tag", tag, setTag), FIELD("id", id, setID), FIELD("color", color, setColor),
          FIELD("default_type", defaultType, setDefaultType), FIELD("types", types, setTypes))

FIELDS_OF(TestDef, FIELD("id", id, setID), field<R>("expected", &R::expected, &R::setExpected),
          digits(
              "in_use", [](const R &definition, int pair) { return int(definition.pair_in_use()[pair]); },
              [](R *definition, int pair, int used) { definition->pair_in_use()[pair] = used == 1; }),
          FIELD("data_rate", data_rate, setDataRate), FIELD("SNR", SNR, setSNR), FIELD("skew", skew, setSkew),
          FIELD("shield", shield, setShield),
          // The fields are read directly, because their getters round.
          field<R>(
              "max_length", [](const R &definition) { return definition.fields().maxLength; }, &R::setMaxLength),
          field<R>(
              "length_constant", [](const R &definition) { return definition.fields().lengthConstant; },
              &R::setLengthConstant),
          FIELD("comment", comment, setComment), FIELD("cable_category", cable_category, setCableCategory),
          FIELD("default_type", default_type, setDefaultType), FIELD("color", color, setColor),
          digits("far_pairs", std::mem_fn(&R::getPairTo), std::mem_fn(&R::setPairMapping)),
          digits(
              "near_care", [](const R &definition, int pair) { return definition.carePair(pair, 0); },
              [](R *definition, int pair, int code) { definition->setPairCare(pair, 0, code); }),
          digits(
              "far_care", [](const R &definition, int pair) { return definition.carePair(pair, 1); },
              [](R *definition, int pair, int code) { definition->setPairCare(pair, 1, code); }))

FIELDS_OF(TestResults, FIELD("status", status, setStatus),
          FIELD("software_version", softwareVersion, setSoftwareVersion),
          FIELD("serial", serialNumber, setSerialNumber), FIELD("time", time, setTime),
          FIELD("bert_errors", BERTResults, setBERTResults), FIELD("echo", echo, setEcho), FIELD("next", next, setNEXT),
          FIELD("chan", channel, setChannel),
          field<R>(
              "data", [](const R &results) { return results.results(); }, &R::setResults))

FIELDS_OF(Floor, FIELD("element", element, setElement), FIELD("id", id, setID), FIELD("pic", pic, setPic),
          FIELD("ceiling_height", ceilingHeight, setCeilingHeight))

FIELDS_OF(Sheet, FIELD("element", element, setElement), FIELD("id", id, setID))

FIELDS_OF(Room, FIELD("element", element, setElement), FIELD("x", x, setX), FIELD("y", y, setY),
          FIELD("width", width, setWidth), FIELD("height", height, setHeight), FIELD("id", id, setID),
          FIELD("namex", roomNameX, setRoomNameX), FIELD("namey", roomNameY, setRoomNameY),
          FIELD("layer", layer, setLayer), FIELD("show_name", showRoomName, setShowRoomName),
          FIELD("show_dimensions", showDimensions, setShowDimensions), FIELD("floor", floor, setFloor))

#define FIELDS_OF_PORT                                                                                                 \
    FIELD("element", element, setElement), FIELD("id", id, setID), FIELD("x", x, setX), FIELD("y", y, setY),           \
        FIELD("use", use, setUse), FIELD("icon_scale", iconScale, setIconScale),                                       \
        FIELD("drop_height", dropHeight, setDropHeight), FIELD("room", room, setRoom), FIELD("floor", floor, setFloor)
#define FIELDS_OF_POINT                                                                                                \
    FIELD("element", element, setElement), FIELD("id", id, setID), FIELD("x", x, setX), FIELD("y", y, setY),           \
        FIELD("parent", parent, setParent)

FIELDS_OF(Port, FIELDS_OF_PORT)
FIELDS_OF(VertRun, FIELDS_OF_PORT, FIELD("connected", connected, setConnected),
          FIELD("disconnected", disconnected, setDisconnected))
FIELDS_OF(Point, FIELDS_OF_POINT)
FIELDS_OF(Vertice, FIELDS_OF_POINT)

FIELDS_OF(FreeText, FIELDS_OF_POINT, FIELD("text", text, setText), FIELD("font", fontFamily, setFontFamily),
          FIELD("font_size", fontSize, setFontSize), FIELD("bold", bold, setBold), FIELD("italic", italic, setItalic),
          FIELD("color", color, setColor))

FIELDS_OF(Device, FIELD("element", element, setElement), FIELD("id", id, setID), FIELD("type", type, setType),
          FIELD("x", x, setX), FIELD("y", y, setY), FIELD("icon_scale", iconScale, setIconScale),
          FIELD("info", info, setInfo), FIELD("sheet", sheet, setSheet))

FIELDS_OF(DeviceConnection, FIELD("tag", tag, setTag), FIELD("id", id, setID), FIELD("to", to, setTo),
          FIELD("from", from, setFrom), FIELD("type", type, setType))

FIELDS_OF(ActiveTestResult, FIELD("time", time, setTime), FIELD("status", status, setStatus),
          FIELD("link_speed", linkSpeed, setLinkSpeed), FIELD("duplex", duplex, setDuplex),
          FIELD("address", address, setAddress), FIELD("values", values, setValues))

FIELDS_OF(ActivePort, FIELD("element", element, setElement), FIELD("id", id, setID), FIELD("port", port, setPort),
          FIELD("results", results, setResults))

FIELDS_OF(Cable, FIELD("tag", tag, setTag), FIELD("id", id, setID), FIELD("use", use, setUse), FIELD("to", to, setTo),
          FIELD("from", from, setFrom), FIELD("type", type, setType), FIELD("path", path, setPath),
          FIELD("bundleName", bundleName, setBundleName), FIELD("bundleNum", bundleNum, setBundleNum),
          FIELD("bundleGroupNum", bundleGroupNum, setBundleGroupNum), FIELD("color", color, setColor),
          FIELD("default_type", defaultType, setDefaultType), INNER("testResults", testResults, setTestResults))
