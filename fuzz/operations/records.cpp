#include "records.h"

#include "fuzzing.h"

#include <cstdio>

QString textOf(const Fields &fields)
{
    QStringList texts;
    for (const auto &[name, value] : fields)
        texts.append(name + "='" + value + '\'');
    return texts.join(' ');
}

Fields fieldsOf(const Floor &floor)
{
    return {{"tag", floor.element()},
            {"id", floor.id()},
            {"pic", floor.pic()},
            {"ceiling_height", textOf(floor.ceilingHeight())}};
}

Fields fieldsOf(const Sheet &sheet)
{
    return {{"tag", sheet.element()}, {"id", sheet.id()}};
}

namespace {

/// Returns a number that is a whole number in files.
QString wholeTextOf(double number)
{
    return number == int(number) ? QString::number(int(number)) : plainNumber(number);
}

} // namespace

Fields fieldsOf(const Room &room)
{
    return {{"tag", room.element()},
            {"holder", room.floor()},
            {"id", room.id()},
            {"x", wholeTextOf(room.x())},
            {"y", wholeTextOf(room.y())},
            {"width", wholeTextOf(room.width())},
            {"height", wholeTextOf(room.height())},
            {"namex", wholeTextOf(room.roomNameX())},
            {"namey", wholeTextOf(room.roomNameY())},
            {"layer", textOf(room.layer())},
            {"show_name", textOf(room.showRoomName())},
            {"show_dimensions", textOf(room.showDimensions())}};
}

Fields fieldsOf(const Port &port)
{
    return {{"tag", port.element()},
            {"holder", port.room()},
            {"floor", port.floor()},
            {"id", port.id()},
            {"x", textOf(port.x())},
            {"y", textOf(port.y())},
            {"use", port.use()},
            {"icon_scale", textOf(port.iconScale())},
            {"drop_height", textOf(port.dropHeight())}};
}

Fields fieldsOf(const VertRun &vertRun)
{
    Fields fields = fieldsOf(static_cast<const Port &>(vertRun));
    fields["connected"] = textOf(vertRun.connected());
    fields["disconnected"] = textOf(vertRun.disconnected());
    return fields;
}

Fields fieldsOf(const Point &point)
{
    return {{"tag", point.element()},
            {"holder", point.parent()},
            {"id", point.id()},
            {"x", textOf(point.x())},
            {"y", textOf(point.y())}};
}

Fields fieldsOf(const Device &device)
{
    return {{"tag", device.element()},
            {"holder", device.sheet()},
            {"id", device.id()},
            {"type", device.type()},
            {"x", textOf(device.x())},
            {"y", textOf(device.y())},
            {"icon_scale", textOf(device.iconScale())},
            {"info", device.info()}};
}

Fields fieldsOf(const FreeText &text)
{
    return {{"tag", text.element()},
            {"holder", text.parent()},
            {"id", text.id()},
            {"text", text.text()},
            {"x", textOf(text.x())},
            {"y", textOf(text.y())},
            {"font", text.fontFamily()},
            {"font_size", textOf(text.fontSize())},
            {"bold", textOf(text.bold())},
            {"italic", textOf(text.italic())},
            {"color", text.color()}};
}

Fields fieldsOf(const ActivePort &activePort)
{
    return {{"tag", activePort.element()}, {"id", activePort.id()}, {"port", activePort.port()}};
}

Fields fieldsOf(const DeviceConnection &connection)
{
    return {{"tag", connection.tag()},
            {"id", connection.id()},
            {"to", connection.to()},
            {"from", connection.from()},
            {"type", connection.type()}};
}

Fields fieldsOf(const Cable &cable)
{
    return {{"tag", cable.tag()},
            {"id", cable.id()},
            {"use", cable.use()},
            {"to", cable.to()},
            {"from", cable.from()},
            {"type", cable.type()},
            {"bundleName", cable.bundleName()},
            {"bundleNum", cable.bundleNum()},
            {"bundleGroupNum", cable.bundleGroupNum()},
            {"color", cable.color()},
            {"path", textOf(cable.path())},
            {"default_type", textOf(cable.defaultType())}};
}

Fields fieldsOf(const TestResults &results)
{
    return {{"status", results.status()},
            {"time", results.time()},
            {"software_version", results.softwareVersion()},
            {"serial", results.serialNumber()},
            {"data", JobEditor::dataToString(results.results())},
            {"bert_errors", textOf(results.BERTResults())},
            {"echo", JobEditor::responseDataToString(results.echo())},
            {"next", JobEditor::responseDataToString(results.next())},
            {"chan", JobEditor::responseDataToString(results.channel())}};
}

Fields fieldsOf(const ActiveTestResult &result)
{
    return {{"time", result.time()},
            {"status", result.status()},
            {"link_speed", textOf(result.linkSpeed())},
            {"duplex", result.duplex()},
            {"address", result.address()}};
}

Fields fieldsOf(const Address &address)
{
    return {{"address1", address.address1()}, {"address2", address.address2()}, {"city", address.city()},
            {"state", address.state()},       {"zipcode", address.zipcode()},   {"country", address.country()}};
}

Fields fieldsOf(const TestDef &definition)
{
    QString pairs;
    for (int pair = 0; pair < 4; ++pair)
        pairs += textOf(definition.pair_in_use()[pair]);
    return {{"id", definition.id()},
            {"expected", JobEditor::dataToString(definition.expected())},
            {"in_use", pairs},
            {"data_rate", textOf(definition.data_rate())},
            {"SNR", textOf(definition.SNR())},
            {"skew", textOf(definition.skew())},
            {"shield", textOf(definition.shield())},
            {"length_constant", textOf(double(definition.fields().lengthConstant))},
            {"max_length", textOf(double(definition.fields().maxLength))},
            {"comment", definition.comment()},
            {"cable_category", textOf(definition.cable_category())},
            {"default_type", textOf(definition.default_type())},
            {"color", definition.color()}};
}

Fields fieldsOf(const PrintSettings &settings)
{
    return {{"paper_size", settings.paperSize()},          {"orientation", textOf(settings.orientation())},
            {"print_zoom", textOf(settings.printZoom())},  {"fit_to_across", textOf(settings.fitToAcross())},
            {"fit_to_down", textOf(settings.fitToDown())}, {"print_zoom_style", textOf(settings.printZoomStyle())}};
}

Fields fieldsOf(const PageSettings &settings)
{
    return {{"page_size", settings.pageSize()},
            {"page_standard", settings.pageStandard()},
            {"orientation", textOf(settings.orientation())},
            {"page_size_style", textOf(settings.pageSizeStyle())},
            {"page_units", textOf(settings.pageUnits())},
            {"custom_height", textOf(settings.customHeight())},
            {"custom_width", textOf(settings.customWidth())}};
}

Fields fieldsOf(const ScaleSettings &settings)
{
    return {{"predefined_scale", settings.predefinedScale()},
            {"predefined_style", settings.predefinedStyle()},
            {"width_units", textOf(settings.widthUnits())},
            {"height_units", textOf(settings.heightUnits())},
            {"custom_height", textOf(settings.customHeight())},
            {"custom_width", textOf(settings.customWidth())},
            {"style", textOf(settings.style())}};
}

namespace {

/// Reads the fields one after the other.
class Reader
{
public:
    explicit Reader(const Fields &fields)
        : m_fields(fields)
    {
    }

    QString text(const char *name) const
    {
        const auto found = m_fields.find(name);
        return found == m_fields.end() ? QString() : found->second;
    }
    double real(const char *name) const { return text(name).toDouble(); }
    int whole(const char *name) const { return text(name).toInt(); }
    bool flag(const char *name) const { return text(name) == "1"; }
    QStringList list(const char *name) const { return entriesOf(text(name)); }
    cable_struct block(const char *name) const { return JobEditor::stringToData(text(name)); }
    TRUEPHY_PLOT_DATA curve(const char *name) const { return JobEditor::responseStringToData(text(name)); }

private:
    const Fields &m_fields;
};

} // namespace

template <> Floor recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"), from.text("id"), from.text("pic"), from.real("ceiling_height")};
}

template <> Sheet recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"), from.text("id")};
}

template <> Room recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"),        from.real("x"),
            from.real("y"),          from.real("width"),
            from.real("height"),     from.text("id"),
            from.text("holder"),     from.real("namex"),
            from.real("namey"),      from.whole("show_dimensions"),
            from.whole("show_name"), from.whole("layer")};
}

template <> Port recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"),        from.text("id"),          from.real("x"),      from.real("y"),    from.text("use"),
            from.real("icon_scale"), from.real("drop_height"), from.text("holder"), from.text("floor")};
}

template <> VertRun recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {recordOf<Port>(fields).fields(), {from.list("connected"), from.list("disconnected")}};
}

template <> Point recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"), from.text("id"), from.real("x"), from.real("y"), from.text("holder")};
}

template <> Vertice recordOf(const Fields &fields)
{
    return Vertice(recordOf<Point>(fields).fields());
}

template <> Device recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"), from.text("id"),         from.text("type"), from.real("x"),
            from.real("y"),   from.real("icon_scale"), from.text("info"), from.text("holder")};
}

template <> FreeText recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"),    from.text("id"),    from.text("text"),      from.real("x"),
            from.real("y"),      from.text("font"),  from.real("font_size"), from.flag("bold"),
            from.flag("italic"), from.text("color"), from.text("holder")};
}

template <> ActivePort recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"), from.text("id"), from.text("port"), {}};
}

template <> DeviceConnection recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"), from.text("id"), from.text("to"), from.text("from"), from.text("type")};
}

template <> TestResults recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("time"),         from.text("software_version"),
            from.text("serial"),       from.text("status"),
            from.whole("bert_errors"), from.block("data"),
            from.curve("next"),        from.curve("echo"),
            from.curve("chan")};
}

template <> Cable recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("tag"),
            from.text("id"),
            from.text("use"),
            from.text("to"),
            from.text("from"),
            from.text("type"),
            TestResults(),
            from.list("path"),
            from.text("bundleName"),
            from.text("bundleNum"),
            from.text("bundleGroupNum"),
            from.text("color")};
}

template <> ActiveTestResult recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("time"),   from.text("status"),  from.whole("link_speed"),
            from.text("duplex"), from.text("address"), {}};
}

template <> Address recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("address1"), from.text("address2"), from.text("city"),
            from.text("state"),    from.text("zipcode"),  from.text("country")};
}

template <> TestDef recordOf(const Fields &fields)
{
    const Reader from(fields);
    const QString pairs = from.text("in_use");
    const bool inUse[] = {pairs[0] == '1', pairs[1] == '1', pairs[2] == '1', pairs[3] == '1'};
    return {from.text("id"),
            from.block("expected"),
            inUse,
            from.whole("data_rate"),
            from.whole("SNR"),
            from.whole("skew"),
            from.flag("shield"),
            from.text("length_constant").toFloat(),
            from.text("max_length").toFloat(),
            from.text("comment"),
            from.whole("cable_category"),
            from.flag("default_type"),
            from.text("color")};
}

template <> PrintSettings recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("paper_size"),     from.whole("orientation"), from.whole("print_zoom"),
            from.whole("fit_to_across"), from.whole("fit_to_down"), from.whole("print_zoom_style")};
}

template <> PageSettings recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("page_size"),        from.text("page_standard"), from.whole("orientation"),
            from.whole("page_size_style"), from.whole("page_units"),   from.real("custom_width"),
            from.real("custom_height")};
}

template <> ScaleSettings recordOf(const Fields &fields)
{
    const Reader from(fields);
    return {from.text("predefined_style"),
            from.text("predefined_scale"),
            from.whole("width_units"),
            from.whole("height_units"),
            from.real("custom_width"),
            from.real("custom_height"),
            from.whole("style")};
}

void expectAnswer(const QString &answer, const QString &expected, const char *what)
{
    if (answer != expected)
        std::fprintf(stderr, "answer:   %s\nexpected: %s\n", qPrintable(answer), qPrintable(expected));
    expect(answer == expected, what);
}

void expectAnswer(const QStringList &answer, const QStringList &expected, const char *what)
{
    if (answer != expected)
        expectAnswer(answer.join('|') + '|', expected.join('|'), what);
}

void expectAnswer(const Fields &answer, const Fields &expected, const char *what)
{
    for (const auto &[name, value] : answer) {
        if (value != expected.at(name))
            expectAnswer(textOf(answer), textOf(expected), what);
    }
}
