#include "operations.h"

#include "randomjob.h"

#include <algorithm>
#include <iterator>

bool isTag(const QString &text)
{
    return !text.isEmpty() && (text.at(0).isLetter() || text.at(0) == '_') && !text.contains(' ');
}

namespace {

using Name = const QString &;

bool isNumber(const QString &text)
{
    return !text.isEmpty()
           && std::all_of(text.begin(), text.end(), [](QChar digit) { return digit >= '0' && digit <= '9'; });
}

/// Returns whether the name is the prefix and a number.
bool isGenerated(const QString &name, const QString &prefix)
{
    return name.startsWith(prefix) && isNumber(name.mid(prefix.size()));
}

QString newId(Session *session, const PlainElement &list, Kind kind, const QString &given, const QString &added)
{
    // Ids of rooms are unique on their floor. Ids of cables have a form of their own.
    const bool isUsed =
        kind == Kind::Rooms ? namesIn(&list, false).contains(added) : session->file.exists(kind, added, false);
    expect(!isUsed, "a generated id was not used");
    expect(isGenerated(added, kind == Kind::Cables ? "Cable" : given), "a generated id is a text and a number");
    expect(kind != Kind::Cables || added.size() >= 8, "the number of a cable has three digits at least");
    return added;
}

} // namespace

PlainElement &appendNew(Session *session, PlainElement &list, Kind kind, const Fields &fields, int mode)
{
    const PlainElement *added = nextChildIn(session->saved(), session->file.root(), list);
    expect(added != nullptr, "an element was added behind the others");
    const bool keepsTag = mode == 2 || mode == 3;
    const bool keepsId = mode == 1 || mode == 2;
    const PlainKind &known = plainKind(kind);
    if (!keepsTag) {
        expect(!session->file.exists(kind, added->name, true), "a generated tag was not used");
        expect(isGenerated(added->name, known.tagPrefix), "a generated tag is a prefix and a number");
    }
    const QString id = keepsId ? fields.at("id") : newId(session, list, kind, fields.at("id"), added->text("id"));
    PlainElement &element = list.add(keepsTag ? fields.at("tag") : added->name);
    element.attributes = newFields(known.attributes, fields);
    element.attributes["id"] = id;
    addLists(&element, kind);
    return element;
}

void addLists(PlainElement *element, Kind kind)
{
    switch (kind) {
    case Kind::Floors:
        PlainJob::undefinedRoom(&element->add("Room_List"));
        break;
    case Kind::Sheets:
        for (const char *list : {"Device_List", "Vertice_List", "FreeText_List"})
            element->add(list);
        break;
    case Kind::Rooms:
        for (const char *list : {"Port_List", "VerticalRun_List"})
            element->add(list);
        break;
    default:
        break;
    }
}

void write(PlainElement *element, const Fields &fields)
{
    for (const auto &[attribute, value] : fields)
        element->attributes[attribute] = value;
}

namespace {

// Adding

template <typename Record> using AddRecord = QString (JobEditor::*)(const Record &, int);

template <typename Record, AddRecord<Record> add> QString addRecord(JobEditor &job, const Fields &fields, int mode)
{
    return (job.*add)(recordOf<Record>(fields), mode);
}

struct Adder
{
    Kind kind;
    QString (*add)(JobEditor &, const Fields &, int mode);
    /// Adds an element by the form that takes all fields as single arguments.
    QString (*addFields)(JobEditor &, const Fields &, int mode);
    const char *failure;
};

const std::vector<Adder> &adders()
{
    using J = JobEditor;
    static const std::vector<Adder> adders{
        {Kind::Connections, addRecord<DeviceConnection, &J::addConnection>,
         [](J &job, const Fields &fields, int mode) {
             const DeviceConnection added = recordOf<DeviceConnection>(fields);
             return job.addConnection(added.tag(), added.id(), added.to(), added.from(), added.type(), mode);
         },
         ""},
        {Kind::ActivePorts, addRecord<ActivePort, &J::addActivePort>,
         [](J &job, const Fields &fields, int mode) {
             return job.addActivePort(fields.at("port"), fields.at("tag"), fields.at("id"), mode);
         },
         ""},
        {Kind::Floors, addRecord<Floor, &J::addFloor>,
         [](J &job, const Fields &fields, int mode) {
             const Floor added = recordOf<Floor>(fields);
             return job.addFloor(added.element(), added.id(), added.ceilingHeight(), added.pic(), mode);
         },
         "Bad Floor"},
        {Kind::Sheets, addRecord<Sheet, &J::addSheet>,
         [](J &job, const Fields &fields, int mode) { return job.addSheet(fields.at("tag"), fields.at("id"), mode); },
         "Bad Sheet"},
        {Kind::Rooms, addRecord<Room, &J::addRoom>,
         [](J &job, const Fields &fields, int mode) {
             const auto whole = [&fields](const char *name) { return fields.at(name).toInt(); };
             return job.addRoom(fields.at("holder"), whole("x"), whole("y"), whole("width"), whole("height"),
                                fields.at("tag"), fields.at("id"), whole("namex"), whole("namey"),
                                whole("show_dimensions"), whole("show_name"), whole("layer"), mode);
         },
         ""},
        {Kind::Ports, addRecord<Port, &J::addPort>,
         [](J &job, const Fields &fields, int mode) {
             const Port added = recordOf<Port>(fields);
             return job.addPort(added.floor(), added.room(), added.x(), added.y(), added.element(), added.id(),
                                added.use(), added.iconScale(), added.dropHeight(), mode);
         },
         ""},
        {Kind::VertRuns, addRecord<VertRun, &J::addVertRun>,
         [](J &job, const Fields &fields, int mode) {
             const VertRun added = recordOf<VertRun>(fields);
             return job.addVertRun(added.floor(), added.room(), added.x(), added.y(), added.element(), added.id(),
                                   added.use(), added.iconScale(), added.dropHeight(), added.connected(),
                                   added.disconnected(), mode);
         },
         ""},
        {Kind::Points, addRecord<Point, &J::addPoint>,
         [](J &job, const Fields &fields, int mode) {
             const Point added = recordOf<Point>(fields);
             return job.addPoint(added.parent(), added.x(), added.y(), added.element(), added.id(), mode);
         },
         ""},
        {Kind::FloorTexts, addRecord<FreeText, &J::addFloorFreeText>,
         [](J &job, const Fields &fields, int mode) {
             const FreeText added = recordOf<FreeText>(fields);
             return job.addFloorFreeText(added.parent(), added.text(), added.x(), added.y(), added.fontFamily(),
                                         added.fontSize(), added.bold(), added.italic(), added.color(), added.element(),
                                         added.id(), mode);
         },
         ""},
        {Kind::Devices, addRecord<Device, &J::addDevice>,
         [](J &job, const Fields &fields, int mode) {
             const Device added = recordOf<Device>(fields);
             return job.addDevice(added.sheet(), added.type(), added.x(), added.y(), added.iconScale(), added.info(),
                                  added.element(), added.id(), mode);
         },
         ""},
        {Kind::Vertices, addRecord<Vertice, &J::addVertice>,
         [](J &job, const Fields &fields, int mode) {
             const Vertice added = recordOf<Vertice>(fields);
             return job.addVertice(added.parent(), added.x(), added.y(), added.element(), added.id(), mode);
         },
         ""},
        {Kind::Texts, addRecord<FreeText, &J::addFreeText>,
         [](J &job, const Fields &fields, int mode) {
             const FreeText added = recordOf<FreeText>(fields);
             return job.addFreeText(added.parent(), added.text(), added.x(), added.y(), added.fontFamily(),
                                    added.fontSize(), added.bold(), added.italic(), added.color(), added.element(),
                                    added.id(), mode);
         },
         ""},
    };
    return adders;
}

/// Chooses the elements that shall hold a new element of a kind.
void chooseHolder(Session *session, Kind kind, Fields *fields)
{
    PlainJob &file = session->file;
    const bool isOnSheet = kind == Kind::Devices || kind == Kind::Vertices || kind == Kind::Texts;
    (*fields)["floor"] = session->choices.tag(file.tags(Kind::Floors));
    if (kind == Kind::Ports || kind == Kind::VertRuns)
        (*fields)["holder"] = session->choices.tag(file.tags(Kind::Rooms));
    else
        (*fields)["holder"] = isOnSheet ? session->choices.tag(file.tags(Kind::Sheets)) : (*fields)["floor"];
}

/// Returns the element that shall hold a new element in one of its lists. Returns null if it does not exist, or if it
/// lacks the list and the operation does not add it.
PlainElement *holderFor(PlainJob *file, Kind kind, const Fields &fields)
{
    const QString list = plainKind(kind).list;
    PlainElement *floor = file->element(Kind::Floors, fields.at("floor"));
    switch (kind) {
    case Kind::Rooms:
        return childOf(floor, list) == nullptr ? nullptr : floor;
    case Kind::ActivePorts:
        return file->at({"ActiveNetworkTest_List"});
    case Kind::Ports:
    case Kind::VertRuns:
        return file->room(fields.at("floor"), fields.at("holder")).element;
    case Kind::Points:
    case Kind::FloorTexts:
        return floor;
    case Kind::Devices:
    case Kind::Vertices:
    case Kind::Texts:
        return file->element(Kind::Sheets, fields.at("holder"));
    case Kind::Cables:
    case Kind::Connections:
    case Kind::Floors:
    case Kind::Sheets:
        break;
    }
    return file->at({list}) == nullptr ? nullptr : &file->root();
}

void addOne(Session *session)
{
    Choices &choices = session->choices;
    const Adder &adder = adders().at(std::size_t(choices.number(int(adders().size()))));
    const int mode = choices.number(5);
    Fields fields = randomFields(choices, adder.kind);
    fields["tag"] = choices.tag(session->file.tags(adder.kind));
    chooseHolder(session, adder.kind, &fields);
    const QString answer = (choices.oneIn(2) ? adder.add : adder.addFields)(session->job, fields, mode);
    PlainElement *holder = holderFor(&session->file, adder.kind, fields);
    const bool isRefused = (mode == 2 || mode == 3) && !isTag(fields["tag"]);
    if (isRefused || holder == nullptr) {
        expectAnswer(answer, adder.failure, "what adding returns when it fails");
        expect(holder == nullptr || !session->job.error().isEmpty(), "a bad tag is refused with a reason");
        return;
    }
    PlainElement &list = holder->ensure(plainKind(adder.kind).list);
    const bool isThere =
        adder.kind == Kind::Rooms && (mode == 2 || mode == 3) && childOf(&list, fields["tag"]) != nullptr;
    if (isThere) {
        expectAnswer(answer, fields["tag"], "the room that was there");
        return;
    }
    const PlainElement &added = appendNew(session, list, adder.kind, fields, mode);
    expectAnswer(answer, adder.kind == Kind::Connections ? added.text("id") : added.name, "what adding returns");
}

// Setting single fields

template <typename Argument> Argument argumentOf(const QString &text);
template <> QString argumentOf(const QString &text)
{
    return text;
}
template <> double argumentOf(const QString &text)
{
    return text.toDouble();
}
template <> bool argumentOf(const QString &text)
{
    return text == "1";
}
template <> QStringList argumentOf(const QString &text)
{
    return entriesOf(text);
}

template <typename Argument>
void callSetter(JobEditor &job, void (JobEditor::*setter)(Name, Argument), Name tag, const QString &text)
{
    (job.*setter)(tag, argumentOf<std::decay_t<Argument>>(text));
}

template <auto Setter> void set(JobEditor &job, Name tag, const QString &text)
{
    callSetter(job, Setter, tag, text);
}

struct FieldSetter
{
    Kind kind;
    const char *attribute;
    void (*set)(JobEditor &, Name tag, const QString &text);
};

const std::vector<FieldSetter> &fieldSetters()
{
    using J = JobEditor;
    static const std::vector<FieldSetter> setters{
        {Kind::Cables, "id", set<&J::setCableID>},
        {Kind::Cables, "use", set<&J::setCableUse>},
        {Kind::Cables, "to", set<&J::setCableTo>},
        {Kind::Cables, "from", set<&J::setCableFrom>},
        {Kind::Cables, "type", set<&J::setCableType>},
        {Kind::Cables, "path", set<&J::setCablePath>},
        {Kind::Cables, "bundleName", set<&J::setCableBundleName>},
        {Kind::Cables, "bundleNum", set<&J::setCableBundleNum>},
        {Kind::Cables, "bundleGroupNum", set<&J::setCableBundleGroupNum>},
        {Kind::Cables, "color", set<&J::setCableColor>},
        {Kind::Cables, "default_type", set<&J::setCableDefaultType>},
        {Kind::Connections, "to", set<&J::setConnectionTo>},
        {Kind::Connections, "from", set<&J::setConnectionFrom>},
        {Kind::Connections, "type",
         [](J &job, Name tag, const QString &text) {
             // The type is given as a number if the text is one.
             text == QString::number(text.toInt()) ? job.setConnectionType(tag, text.toInt())
                                                   : job.setConnectionType(tag, text);
         }},
        {Kind::ActivePorts, "id", set<&J::setActivePortID>},
        {Kind::ActivePorts, "port", set<&J::setActivePortPort>},
        {Kind::Floors, "id", set<&J::setFloorId>},
        {Kind::Floors, "ceiling_height", set<&J::setFloorCeilingHeight>},
        {Kind::Floors, "option", set<&J::setBackgroundOption>},
        {Kind::Sheets, "id", set<&J::setSheetID>},
        {Kind::Ports, "id", set<&J::setPortID>},
        {Kind::Ports, "use", set<&J::setPortUse>},
        {Kind::Ports, "icon_scale", set<&J::setPortIconScale>},
        {Kind::Ports, "drop_height", set<&J::setPortDropHeight>},
        {Kind::VertRuns, "id", set<&J::setVertRunID>},
        {Kind::VertRuns, "use", set<&J::setVertRunUse>},
        {Kind::VertRuns, "icon_scale", set<&J::setVertRunIconScale>},
        {Kind::VertRuns, "drop_height", set<&J::setVertRunDropHeight>},
        {Kind::VertRuns, "connected", set<&J::setVertRunConnected>},
        {Kind::VertRuns, "disconnected", set<&J::setVertRunDisconnected>},
        {Kind::Points, "id", set<&J::setPointID>},
        {Kind::FloorTexts, "id", set<&J::setFloorFreeTextID>},
        {Kind::FloorTexts, "text", set<&J::setFloorFreeTextText>},
        {Kind::FloorTexts, "font", set<&J::setFloorFreeTextFontFamily>},
        {Kind::FloorTexts, "font_size", set<&J::setFloorFreeTextFontSize>},
        {Kind::FloorTexts, "bold", set<&J::setFloorFreeTextBold>},
        {Kind::FloorTexts, "italic", set<&J::setFloorFreeTextItalic>},
        {Kind::FloorTexts, "color", set<&J::setFloorFreeTextColor>},
        {Kind::Devices, "id", set<&J::setDeviceID>},
        {Kind::Devices, "type", set<&J::setDeviceType>},
        {Kind::Devices, "icon_scale", set<&J::setDeviceIconScale>},
        {Kind::Devices, "info", set<&J::setDeviceInfo>},
        {Kind::Vertices, "id", set<&J::setVerticeID>},
        {Kind::Texts, "id", set<&J::setFreeTextID>},
        {Kind::Texts, "text", set<&J::setFreeTextText>},
        {Kind::Texts, "font", set<&J::setFreeTextFontFamily>},
        {Kind::Texts, "font_size", set<&J::setFreeTextFontSize>},
        {Kind::Texts, "bold", set<&J::setFreeTextBold>},
        {Kind::Texts, "italic", set<&J::setFreeTextItalic>},
        {Kind::Texts, "color", set<&J::setFreeTextColor>},
    };
    return setters;
}

/// Returns the attribute with the given name, or a text attribute if the records of the kind lack it.
PlainAttribute attributeOf(Kind kind, const char *name)
{
    for (const PlainAttribute &attribute : plainKind(kind).attributes) {
        if (attribute.name == QLatin1String(name))
            return attribute;
    }
    return {name, Value::Text, QString()};
}

void setField(Session *session, const FieldSetter &setter, const QString &text)
{
    const QString tag = session->choices.tag(session->file.tags(setter.kind));
    setter.set(session->job, tag, text);
    PlainElement *element = session->file.element(setter.kind, tag);
    // The setters of cables and connections do not create attributes.
    const bool creates = setter.kind != Kind::Cables && setter.kind != Kind::Connections;
    if (element != nullptr && (creates || element->has(setter.attribute)))
        element->attributes[setter.attribute] = text;
}

void setSomeField(Session *session)
{
    Choices &choices = session->choices;
    const FieldSetter &setter = fieldSetters().at(std::size_t(choices.number(int(fieldSetters().size()))));
    const PlainAttribute attribute = attributeOf(setter.kind, setter.attribute);
    setField(session, setter, canonical(attribute.value, randomValue(choices, setter.kind, attribute)));
}

/// Makes an element refer to another one that exists.
void nameOther(Session *session)
{
    static const std::pair<const char *, std::vector<Kind>> named[] = {
        {"to", {Kind::Ports, Kind::VertRuns, Kind::Devices, Kind::Vertices}},
        {"from", {Kind::Ports, Kind::VertRuns, Kind::Devices, Kind::Vertices}},
        {"path", {Kind::Points, Kind::Ports, Kind::VertRuns}},
        {"connected", {Kind::Cables}},
        {"disconnected", {Kind::Cables}},
        {"port", {Kind::Ports}},
    };
    const auto &[attribute, kinds] = named[session->choices.number(int(std::size(named)))];
    const QString name = attribute;
    std::vector<FieldSetter> setters;
    std::copy_if(fieldSetters().begin(), fieldSetters().end(), std::back_inserter(setters),
                 [&name](const FieldSetter &setter) { return name == setter.attribute; });
    const FieldSetter &setter = setters.at(std::size_t(session->choices.number(int(setters.size()))));
    QStringList tags;
    for (const Kind kind : kinds)
        tags += session->file.tags(kind);
    setField(session, setter, session->choices.oneOf(tags));
}

void setPosition(Session *session)
{
    using J = JobEditor;
    const std::pair<Kind, void (J::*)(Name, double, double)> setters[] = {
        {Kind::Ports, &J::setPortPos},     {Kind::VertRuns, &J::setVertRunPos},
        {Kind::Points, &J::setPointPos},   {Kind::FloorTexts, &J::setFloorFreeTextPos},
        {Kind::Devices, &J::setDevicePos}, {Kind::Vertices, &J::setVerticePos},
        {Kind::Texts, &J::setFreeTextPos},
    };
    const auto &[kind, setter] = setters[session->choices.number(int(std::size(setters)))];
    const QString tag = session->choices.tag(session->file.tags(kind));
    const double x = session->choices.real();
    const double y = session->choices.real();
    (session->job.*setter)(tag, x, y);
    if (PlainElement *element = session->file.element(kind, tag))
        write(element, {{"x", plainNumber(x)}, {"y", plainNumber(y)}});
}

// Removing and moving

template <typename Record> using RemoveRecord = void (JobEditor::*)(const Record &);
using RemoveTag = void (JobEditor::*)(Name);

template <typename Record, RemoveTag byTag, RemoveRecord<Record> byRecord>
void removeEither(JobEditor &job, Name tag, bool usesRecord)
{
    if (usesRecord)
        (job.*byRecord)(recordOf<Record>({{"tag", tag}}));
    else
        (job.*byTag)(tag);
}

void removeOne(Session *session)
{
    using J = JobEditor;
    const std::pair<Kind, void (*)(J &, Name, bool)> removers[] = {
        {Kind::Cables, removeEither<Cable, &J::removeCable, &J::removeCable>},
        {Kind::Connections, removeEither<DeviceConnection, &J::removeConnection, &J::removeConnection>},
        {Kind::ActivePorts, removeEither<ActivePort, &J::removeActivePort, &J::removeActivePort>},
        {Kind::Ports, removeEither<Port, &J::removePort, &J::removePort>},
        {Kind::VertRuns, removeEither<VertRun, &J::removeVertRun, &J::removeVertRun>},
        {Kind::Points, removeEither<Point, &J::removePoint, &J::removePoint>},
        {Kind::FloorTexts, removeEither<FreeText, &J::removeFloorFreeText, &J::removeFloorFreeText>},
        {Kind::Devices, removeEither<Device, &J::removeDevice, &J::removeDevice>},
        {Kind::Vertices, removeEither<Vertice, &J::removeVertice, &J::removeVertice>},
        {Kind::Texts, removeEither<FreeText, &J::removeFreeText, &J::removeFreeText>},
    };
    const auto &[kind, remove] = removers[session->choices.number(int(std::size(removers)))];
    const QString tag = session->choices.tag(session->file.tags(kind));
    remove(session->job, tag, session->choices.oneIn(2));
    session->file.remove(kind, tag);
}

void moveToRoom(Session *session)
{
    PlainJob &file = session->file;
    const bool isPort = session->choices.oneIn(2);
    const Kind kind = isPort ? Kind::Ports : Kind::VertRuns;
    const QString tag = session->choices.tag(file.tags(kind));
    const QString floorTag = session->choices.tag(file.tags(Kind::Floors));
    const QString roomTag = session->choices.tag(file.tags(Kind::Rooms));
    (session->job.*(isPort ? &JobEditor::setPortRoom : &JobEditor::setVertRunRoom))(tag, floorTag, roomTag);
    const Place place = file.first(kind, tag);
    PlainElement *room = file.room(floorTag, roomTag).element;
    if (place.element == nullptr || room == nullptr || room == place.holder)
        return;
    std::list<PlainElement> &target = room->ensure(plainKind(kind).list).children;
    const auto moved = std::find_if(place.list->children.begin(), place.list->children.end(),
                                    [&place](const PlainElement &child) { return &child == place.element; });
    target.splice(target.end(), place.list->children, moved);
}

} // namespace

const Operations &elementOperations()
{
    static const Operations operations{addOne,    addOne,    addOne,      setSomeField, setSomeField, nameOther,
                                       nameOther, nameOther, setPosition, removeOne,    removeOne,    moveToRoom};
    return operations;
}
