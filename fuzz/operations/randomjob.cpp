#include "randomjob.h"

namespace {

QString randomList(Choices &choices, const QStringList &entries)
{
    QStringList list;
    for (int i = choices.number(4); i > 0; --i)
        list.append(choices.oneOf(entries));
    return list.join(',');
}

/// Returns what the attributes with the given name hold in most jobs, or an empty list if it can be anything.
QStringList usualTexts(Kind kind, const QString &attribute)
{
    static const QStringList ends{"Port1", "Port2", "VertRun1", "Port3", "VertRun2", "none", "", "Port1,Port2"};
    static const QStringList devices{"Device1", "Vertice1", "Device2", "none", "", "Device1,Vertice1"};
    static const QStringList types{"CAT5E", "CAT6", "", "Hall"};
    static const std::map<QString, QStringList> texts{
        {"port", ends},
        {"use", {"data", "TV", "cable_box", ""}},
        {"bundleName", {"Home", "", "Hall"}},
        {"bundleNum", {"1", "2", ""}},
        {"bundleGroupNum", {"1", "", "2", "4", "x"}},
        {"status", {"PASS", "UNTESTED", "", "FAIL"}},
        {"time", {"noon", "", "night"}},
        {"style", {"1", "2", "0", "x"}},
        {"height_units", {"0", "1", "2", "7"}},
        {"color", {"#112233", "red", "", "no color"}},
        {"predefined_style", {"English", "Metric", ""}},
        {"predefined_scale", {"1\" = 10'0\"", "1 : 5", "", "1\" = 50'0\""}},
    };
    if (attribute == "to" || attribute == "from")
        return kind == Kind::Connections ? devices : ends;
    if (attribute == "type")
        return kind == Kind::Connections ? QStringList{"1", "2", "x", "-7"} : types;
    const auto found = texts.find(attribute);
    return found == texts.end() ? QStringList() : found->second;
}

QString randomText(Choices &choices, Kind kind, const QString &attribute)
{
    const QStringList texts = usualTexts(kind, attribute);
    return texts.isEmpty() ? choices.id() : choices.oneOf(texts);
}

QString randomWhole(Choices &choices, Kind kind, const QString &attribute)
{
    const QStringList texts = usualTexts(kind, attribute);
    if (!texts.isEmpty())
        return choices.oneOf(texts);
    return choices.oneIn(8) ? choices.oneOf({"x", "", "1.5", "99999999999"}) : QString::number(choices.whole());
}

QString randomBlock(Choices &choices)
{
    QString block;
    for (int i = choices.oneIn(2) ? 24 : choices.number(24); i > 0; --i)
        block += choices.oneOf({"0000", "00C8", "0120", "FFFF", "EA60", "01"});
    return block;
}

QString randomCurve(Choices &choices)
{
    if (!choices.oneIn(12))
        return choices.oneOf({"", "1,2,3", "x"});
    return QString("7,-7,").repeated(257) + "257,";
}

} // namespace

QString randomValue(Choices &choices, Kind kind, const PlainAttribute &attribute)
{
    static const QStringList ways{"Point1", "Port1", "VertRun1", "Point2", "none", "VertRun2", "Port2", ""};
    switch (attribute.value) {
    case Value::Text:
        return randomText(choices, kind, attribute.name);
    case Value::Whole:
        return randomWhole(choices, kind, attribute.name);
    case Value::Real:
    case Value::Float:
        return choices.oneIn(8) ? choices.oneOf({"x", "", "1e3", "nan", "-inf"}) : plainNumber(choices.real());
    case Value::Flag:
        return choices.oneOf({"1", "0", "true"});
    case Value::Pairs:
        return choices.oneOf({"1111", "0101", "01", "0x11"});
    case Value::List:
        return randomList(choices, kind == Kind::Cables ? ways : QStringList{"Cable1", "Cable2", "none", "Cable10"});
    case Value::Block:
        return randomBlock(choices);
    case Value::Curve:
        return randomCurve(choices);
    }
    return QString();
}

QString randomValue(Choices &choices, const PlainAttribute &attribute)
{
    return randomValue(choices, Kind::Floors, attribute);
}

Fields randomFields(Choices &choices, const PlainAttributes &attributes)
{
    Fields fields;
    for (const PlainAttribute &attribute : attributes)
        fields[attribute.name] = canonical(attribute.value, randomValue(choices, attribute));
    return fields;
}

Fields randomFields(Choices &choices, Kind kind)
{
    Fields fields;
    for (const PlainAttribute &attribute : plainKind(kind).attributes)
        fields[attribute.name] = canonical(attribute.value, randomValue(choices, kind, attribute));
    return fields;
}

namespace {

class RandomJob
{
public:
    explicit RandomJob(Choices *choices)
        : m_choices(*choices)
    {
    }

    PlainElement make()
    {
        PlainElement root{"Job", {}, {}};
        root.add("Version").attributes["number"] = "3.0";
        if (isThere())
            root.add("Release").attributes["Hall"] = m_choices.id();
        addInfo(&root, "Contractor_Info", {"tester", "company", "email", "phone", "logo"});
        addInfo(&root, "Site_Info", {"phone", "jobid", "company", "email", "contact"});
        addElements(&root, Kind::Cables);
        addElements(&root, Kind::Connections);
        addElements(&root, Kind::Floors);
        addElements(&root, Kind::Sheets);
        addTestDefs(&root);
        addBundles(&root);
        addSettings(&root);
        if (isThere())
            addAttribute(&root.add("JobNotes_Text"), {"text", Value::Text, ""}, Kind::Floors);
        if (isThere())
            addElements(&root.add("ActiveNetworkTest_List"), Kind::ActivePorts);
        return root;
    }

private:
    bool isThere() { return !m_choices.oneIn(10); }

    void addAttribute(PlainElement *element, const PlainAttribute &attribute, Kind kind)
    {
        if (isThere())
            element->attributes[attribute.name] = randomValue(m_choices, kind, attribute);
    }

    void addAttributes(PlainElement *element, const PlainAttributes &attributes, Kind kind = Kind::Floors)
    {
        for (const PlainAttribute &attribute : attributes)
            addAttribute(element, attribute, kind);
    }

    void addInfo(PlainElement *root, const QString &name, const QStringList &attributes)
    {
        if (!isThere())
            return;
        PlainElement &info = root->add(name);
        for (const QString &attribute : attributes) {
            if (isThere())
                info.attributes[attribute] = m_choices.id();
        }
        if (isThere())
            addAttributes(&info.add("Address"), addressAttributes());
    }

    QString tag(const QString &prefix)
    {
        return m_choices.oneIn(12)
                   ? m_choices.oneOf({"P1", "Port_List", "\u00dc", prefix + "9", prefix + "10", "Cable01"})
                   : prefix + QString::number(1 + m_choices.number(3));
    }

    void addElements(PlainElement *holder, Kind kind)
    {
        if (!isThere())
            return;
        const PlainKind &known = plainKind(kind);
        PlainElement &list = holder->add(known.list);
        if (kind == Kind::Rooms && isThere())
            addUndefinedRoom(&list);
        for (int i = m_choices.number(kind == Kind::Cables ? 6 : 4); i > 0; --i) {
            PlainElement &element = list.add(tag(known.tagPrefix));
            addAttributes(&element, known.attributes, kind);
            addContents(&element, kind);
        }
    }

    void addUndefinedRoom(PlainElement *roomList)
    {
        PlainElement &room = roomList->add("Undefined");
        room.attributes["id"] = "Undefined";
        addContents(&room, Kind::Rooms);
    }

    void addContents(PlainElement *element, Kind kind)
    {
        static const std::map<Kind, std::vector<Kind>> contents{
            {Kind::Floors, {Kind::Rooms, Kind::Points, Kind::FloorTexts}},
            {Kind::Rooms, {Kind::Ports, Kind::VertRuns}},
            {Kind::Sheets, {Kind::Devices, Kind::Vertices, Kind::Texts}},
        };
        if (const auto found = contents.find(kind); found != contents.end()) {
            for (const Kind held : found->second)
                addElements(element, held);
        }
        if (kind == Kind::Cables && isThere())
            addAttributes(&element->add("Test_Results"), testResultsAttributes());
        if (kind == Kind::ActivePorts)
            addResults(element);
    }

    void addResults(PlainElement *activePort)
    {
        for (int i = m_choices.number(3); i > 0; --i) {
            PlainElement &result = activePort->add("ActiveTest_Result");
            addAttributes(&result, activeTestResultAttributes());
            if (m_choices.oneIn(2))
                result.add("Value").attributes = {{"name", m_choices.id()}, {"value", m_choices.id()}};
        }
    }

    void addTestDefs(PlainElement *root)
    {
        if (!isThere())
            return;
        PlainElement &list = root->add("TestDef_List");
        for (int i = m_choices.number(3); i > 0; --i) {
            PlainElement &definition = list.add(tag("TestDef"));
            addAttributes(&definition, testDefAttributes());
            if (m_choices.oneIn(2))
                definition.attributes["id"] = m_choices.oneOf({"CAT5E", "CAT6"});
        }
    }

    void addBundles(PlainElement *root)
    {
        if (!isThere())
            return;
        PlainElement &list = root->add("BundledCable_List");
        for (int i = m_choices.number(3); i > 0; --i) {
            PlainElement &bundle = list.add(tag("BundledCable"));
            addAttributes(&bundle,
                          {{"id", Value::Text, ""}, {"color", Value::Text, ""}, {"default_type", Value::Flag, ""}});
            if (!isThere())
                continue;
            PlainElement &types = bundle.add("BundledCableType_List");
            for (int j = m_choices.number(3); j > 0; --j)
                types.add(tag("BundledCableType")).attributes["id"] = m_choices.id();
        }
    }

    void addSettings(PlainElement *root)
    {
        if (!isThere())
            return;
        PlainElement &settings = root->add("Settings_List");
        for (const PlainSettings &kind : plainSettings()) {
            if (!isThere())
                continue;
            PlainElement &list = settings.add(kind.list);
            for (const QString &entry : kind.entries) {
                if (m_choices.oneIn(2))
                    addAttributes(&list.add(entry), kind.attributes);
            }
        }
    }

    Choices &m_choices;
};

} // namespace

PlainElement randomJob(Choices &choices)
{
    return RandomJob(&choices).make();
}
