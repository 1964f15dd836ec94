#include "operations.h"

#include "randomjob.h"

namespace {

using Name = const QString &;

QString someFloor(Session *session)
{
    return session->choices.tag(session->file.tags(Kind::Floors));
}

QString someSheet(Session *session)
{
    return session->choices.tag(session->file.tags(Kind::Sheets));
}

/// Adds an attribute to an element that lacks it.
void ensureAttribute(PlainElement *element, const QString &attribute, const QString &value)
{
    if (element != nullptr)
        element->attributes.emplace(attribute, value);
}

// Floors and sheets

void readFloor(Session *session)
{
    const QString tag = someFloor(session);
    PlainElement *floor = session->file.element(Kind::Floors, tag);
    const PlainKind &floors = plainKind(Kind::Floors);
    const Fields expected = session->file.record(Kind::Floors, session->file.first(Kind::Floors, tag));
    if (session->choices.oneIn(2))
        expectAnswer(fieldsOf(session->job.getFloor(tag)), expected, "a floor");
    else
        expectAnswer(textOf(session->job.getFloorCeilingHeight(tag)), expected.at("ceiling_height"),
                     "a ceiling height");
    complete(floors.attributes, floor);
}

void readBackground(Session *session)
{
    const QString tag = someFloor(session);
    const QPoint origin = session->job.getFloorBackgroundOrigin(tag);
    const QString option = session->job.getBackgroundOption(tag);
    PlainElement *floor = session->file.element(Kind::Floors, tag);
    ensureAttribute(floor, "pic_x", "0");
    ensureAttribute(floor, "pic_y", "0");
    ensureAttribute(floor, "option", "Center");
    const PlainElement expected = floor == nullptr ? PlainElement() : *floor;
    expectAnswer(textOf(origin.x()), textOf(expected.text("pic_x").toInt()), "the origin of a background");
    expectAnswer(textOf(origin.y()), textOf(expected.text("pic_y").toInt()), "the origin of a background");
    expectAnswer(option, expected.text("option"), "how a background is shown");
}

void setBackground(Session *session)
{
    const QString tag = someFloor(session);
    const QString picture = session->choices.id();
    const int x = session->choices.whole();
    const int y = session->choices.whole();
    session->job.setFloorBackgroundPic(tag, picture, x, y);
    PlainElement *floor = session->file.element(Kind::Floors, tag);
    if (floor == nullptr)
        return;
    write(floor, {{"pic", picture}, {"pic_x", textOf(x)}});
    ensureAttribute(floor, "pic_y", textOf(y));
}

void renameAll(Session *session)
{
    const bool isFloors = session->choices.oneIn(2);
    QMap<QString, QString> ids;
    for (int i = session->choices.number(4); i > 0; --i) {
        const QString tag = isFloors ? someFloor(session) : someSheet(session);
        ids.insert(tag, session->choices.id());
    }
    (session->job.*(isFloors ? &JobEditor::setAllFloorIds : &JobEditor::setAllSheetIDs))(ids);
    for (auto id = ids.cbegin(); id != ids.cend(); ++id) {
        if (PlainElement *element = session->file.element(isFloors ? Kind::Floors : Kind::Sheets, id.key()))
            element->attributes["id"] = id.value();
    }
}

void removeFloorOrSheet(Session *session)
{
    if (session->choices.oneIn(2)) {
        const QString tag = someSheet(session);
        session->job.removeSheet(tag);
        session->file.removeSheet(tag);
        return;
    }
    const QString tag = someFloor(session);
    if (session->choices.oneIn(2))
        session->job.removeFloor(recordOf<Floor>({{"tag", tag}}));
    else
        session->job.removeFloor(tag);
    session->file.removeFloor(tag);
}

// Rooms

Fields defaultRoom(const QString &name)
{
    Fields fields = fieldsOf(plainKind(Kind::Rooms).attributes, nullptr);
    fields["holder"] = QString();
    fields["tag"] = name;
    fields["id"] = name;
    return fields;
}

/// Returns the room that readers return, and completes it as they do.
Fields readRoom(PlainJob *file, const QString &name, const Place &place)
{
    if (name == "Undefined")
        return defaultRoom(name);
    complete(plainKind(Kind::Rooms).attributes, place.element);
    return file->record(Kind::Rooms, place);
}

QString someRoomId(Session *session, const QString &floorTag)
{
    const PlainElement *rooms = childOf(session->file.element(Kind::Floors, floorTag), "Room_List");
    return session->choices.oneIn(8) ? session->choices.id() : session->choices.oneOf(namesIn(rooms, false));
}

void readRoom(Session *session)
{
    PlainJob &file = session->file;
    const QString floor = someFloor(session);
    const QString tag = session->choices.tag(file.tags(Kind::Rooms));
    const QString id = someRoomId(session, floor);
    switch (session->choices.number(3)) {
    case 0:
        expectAnswer(fieldsOf(session->job.getRoomByTag(floor, tag)), readRoom(&file, tag, file.room(floor, tag)),
                     "the room of a tag on a floor");
        break;
    case 1:
        expectAnswer(fieldsOf(session->job.getRoomByTag(tag)), readRoom(&file, tag, file.first(Kind::Rooms, tag)),
                     "the room of a tag");
        break;
    default:
        expectAnswer(fieldsOf(session->job.getRoomById(floor, id)), readRoom(&file, id, file.roomById(floor, id)),
                     "the room of an id");
    }
}

struct RoomSetter
{
    QStringList attributes;
    bool completes;
    void (*set)(JobEditor &, Name floorTag, Name id, const QVector<int> &values);
};

const std::vector<RoomSetter> &roomSetters()
{
    using J = JobEditor;
    using Values = const QVector<int> &;
    static const std::vector<RoomSetter> setters{
        {{"x", "y", "width", "height"},
         false,
         [](J &job, Name floor, Name id, Values v) { job.setRoomPos(floor, id, v[0], v[1], v[2], v[3]); }},
        {{"namex", "namey"},
         true,
         [](J &job, Name floor, Name id, Values v) { job.setRoomNamePos(floor, id, QPoint(v[0], v[1])); }},
        {{"layer"}, true, [](J &job, Name floor, Name id, Values v) { job.setRoomLayer(floor, id, v[0]); }},
        {{"show_name"}, true, [](J &job, Name floor, Name id, Values v) { job.setShowRoomName(floor, id, v[0]); }},
        {{"show_dimensions"},
         true,
         [](J &job, Name floor, Name id, Values v) { job.setShowRoomDimensions(floor, id, v[0]); }},
    };
    return setters;
}

void setRoom(Session *session)
{
    const RoomSetter &setter = roomSetters().at(std::size_t(session->choices.number(int(roomSetters().size()))));
    const QString floor = someFloor(session);
    const QString id = someRoomId(session, floor);
    QVector<int> values;
    for (int i = 0; i < setter.attributes.size(); ++i)
        values.append(session->choices.whole());
    setter.set(session->job, floor, id, values);
    PlainElement *room = session->file.roomById(floor, id).element;
    if (room == nullptr)
        return;
    if (setter.completes && id != "Undefined")
        complete(plainKind(Kind::Rooms).attributes, room);
    for (int i = 0; i < setter.attributes.size(); ++i)
        room->attributes[setter.attributes.at(i)] = textOf(values.at(i));
}

void renameRoom(Session *session)
{
    const QString floor = someFloor(session);
    const QString id = someRoomId(session, floor);
    const QString newId = session->choices.id();
    session->job.setRoomName(floor, id, newId);
    if (PlainElement *room = session->file.roomById(floor, id).element)
        room->attributes["id"] = newId;
}

void removeRoom(Session *session)
{
    const QString floor = someFloor(session);
    const QString tag = session->choices.tag(session->file.tags(Kind::Rooms));
    if (session->choices.oneIn(2))
        session->job.removeRoom(recordOf<Room>({{"tag", tag}, {"holder", floor}}));
    else
        session->job.removeRoom(floor, tag);
    session->file.removeRoom(floor, tag);
}

// Copies

constexpr int generatedNames = 0;
constexpr int givenId = 1;

QString withoutNumber(QString name)
{
    while (!name.isEmpty() && name.at(name.size() - 1) >= '0' && name.at(name.size() - 1) <= '9')
        name.chop(1);
    return name;
}

/// Adds copies of all elements of a list to another holder, under new names. Returns the tags of the copies by the tags
/// of the originals.
QMap<QString, QString> copyList(Session *session, PlainElement *from, PlainElement *to, Kind kind)
{
    QMap<QString, QString> copies;
    const PlainKind &known = plainKind(kind);
    PlainElement *list = childOf(from, known.list);
    const std::list<PlainElement> sources = childrenOf(list);
    for (const PlainElement &source : sources) {
        Fields fields = fieldsOf(known.attributes, &source);
        fields["id"] = withoutNumber(fields["id"]);
        copies[source.name] = appendNew(session, to->ensure(known.list), kind, fields, generatedNames).name;
    }
    return copies;
}

/// Returns the first of "12", "12A", ..., "12Z", "12[", "12AA", ... that no element has.
QString freeId(PlainJob *file, Kind kind, const QString &id)
{
    for (QString base = id;; base += 'A') {
        if (base == id && !file->exists(kind, id, false))
            return id;
        for (char letter = 'A'; letter <= '['; ++letter) {
            if (!file->exists(kind, base + letter, false))
                return base + letter;
        }
    }
}

class FloorCopy
{
public:
    FloorCopy(Session *session, const QString &to, const QMap<QString, QString> &cableIds)
        : m_session(session)
        , m_file(session->file)
        , m_to(to)
        , m_cableIds(cableIds)
    {
    }

    void copy(const QString &from)
    {
        PlainElement *source = m_file.element(Kind::Floors, from);
        PlainElement *target = m_file.element(Kind::Floors, m_to);
        PlainElement &roomList = target->ensure("Room_List");
        const QStringList cables = m_file.cablesEndingAt(m_file.endsOnFloor(from));
        m_points = copyList(m_session, source, target, Kind::Points);
        copyList(m_session, source, target, Kind::FloorTexts);

        std::vector<std::pair<PlainElement *, QString>> rooms;
        for (PlainElement &room : childrenOf(childOf(source, "Room_List")))
            rooms.emplace_back(&room, QString());
        for (auto &[room, copy] : rooms)
            copy = copyOfRoom(room, &roomList);
        copyRooms(rooms, Kind::Ports, &m_ports);
        copyRooms(rooms, Kind::VertRuns, &m_vertRuns);
        copyCables(cables);
        connectVertRuns();
    }

private:
    QString copyOfRoom(PlainElement *source, PlainElement *roomList)
    {
        if (source->name == "Undefined")
            return PlainJob::undefinedRoom(roomList).name;
        if (const PlainElement *there = m_file.roomById(m_to, source->text("id")).element)
            return there->name;
        const PlainKind &rooms = plainKind(Kind::Rooms);
        complete(rooms.attributes, source);
        return appendNew(m_session, *roomList, Kind::Rooms, fieldsOf(rooms.attributes, source), givenId).name;
    }

    void copyRooms(const std::vector<std::pair<PlainElement *, QString>> &rooms, Kind kind,
                   QMap<QString, QString> *copies)
    {
        const PlainKind &known = plainKind(kind);
        for (const auto &[room, copyOfRoom] : rooms) {
            const std::list<PlainElement> sources = childrenOf(childOf(room, known.list));
            for (const PlainElement &source : sources) {
                Fields fields = fieldsOf(known.attributes, &source);
                fields["id"] = freeId(&m_file, kind, fields["id"]);
                if (kind == Kind::VertRuns)
                    fields["connected"] = fields["disconnected"] = QString();
                PlainElement &list = m_file.room(m_to, copyOfRoom).element->ensure(known.list);
                (*copies)[source.name] = appendNew(m_session, list, kind, fields, givenId).name;
            }
        }
    }

    QString end(const QString &tag) const { return m_ports.value(tag, m_vertRuns.value(tag, tag)); }

    QString passed(const QString &path) const
    {
        QStringList copies;
        for (const QString &tag : entriesOf(path))
            copies.append(m_points.value(tag, end(tag)));
        return copies.join(',');
    }

    void copyCables(const QStringList &tags)
    {
        QStringList takenGroups;
        for (const Place &cable : m_file.all(Kind::Cables))
            takenGroups.append(cable.element->text("bundleGroupNum"));
        QMap<QString, QString> groups{{QString(), QString()}};
        for (const QString &tag : tags) {
            Fields fields = fieldsOf(plainKind(Kind::Cables).attributes, m_file.element(Kind::Cables, tag));
            fields["to"] = end(fields["to"]);
            fields["from"] = end(fields["from"]);
            fields["path"] = passed(fields["path"]);
            const QString group = fields["bundleGroupNum"];
            if (!groups.contains(group))
                groups[group] = freeGroup(&takenGroups);
            fields["bundleGroupNum"] = groups[group];
            fields["id"] = m_cableIds.value(fields["id"]);
            const int mode = fields["id"].isEmpty() ? generatedNames : givenId;
            m_cables[tag] = addCable(m_session, fields, fieldsOf(testResultsAttributes(), nullptr), mode).name;
        }
    }

    static QString freeGroup(QStringList *taken)
    {
        int number = 1;
        while (taken->contains(QString::number(number)))
            ++number;
        taken->append(QString::number(number));
        return taken->constLast();
    }

    void connectVertRuns()
    {
        for (auto vertRun = m_vertRuns.cbegin(); vertRun != m_vertRuns.cend(); ++vertRun) {
            const PlainElement *source = m_file.element(Kind::VertRuns, vertRun.key());
            PlainElement *copy = m_file.element(Kind::VertRuns, vertRun.value());
            for (const char *attribute : {"connected", "disconnected"}) {
                QStringList cables;
                for (const QString &tag : source == nullptr ? QStringList() : entriesOf(source->text(attribute))) {
                    if (m_cables.contains(tag))
                        cables.append(m_cables.value(tag));
                }
                copy->attributes[attribute] = cables.join(',');
            }
        }
    }

    Session *m_session;
    PlainJob &m_file;
    QString m_to;
    QMap<QString, QString> m_cableIds;
    /// Tags of the copies by the tags of the originals.
    QMap<QString, QString> m_ports;
    QMap<QString, QString> m_vertRuns;
    QMap<QString, QString> m_points;
    QMap<QString, QString> m_cables;
};

} // namespace

void copyFloor(Session *session, const QString &from, const QString &to, const QMap<QString, QString> &cableIds)
{
    if (session->file.element(Kind::Floors, from) != nullptr && session->file.element(Kind::Floors, to) != nullptr)
        FloorCopy(session, to, cableIds).copy(from);
}

void copySheet(Session *session, const QString &from, const QString &to)
{
    PlainElement *source = session->file.element(Kind::Sheets, from);
    PlainElement *target = session->file.element(Kind::Sheets, to);
    if (source == nullptr || target == nullptr)
        return;
    for (const Kind kind : {Kind::Devices, Kind::Vertices, Kind::Texts})
        copyList(session, source, target, kind);
}

namespace {

/// Number of elements from which on nothing is copied, because each copy may double the elements.
constexpr int manyElements = 300;

int countOf(const PlainElement &element)
{
    int count = 1;
    for (const PlainElement &child : element.children)
        count += countOf(child);
    return count;
}

void copyOneSheet(Session *session)
{
    const QString from = someSheet(session);
    const QString to = someSheet(session);
    session->job.copySheet(from, to);
    copySheet(session, from, to);
}

void copyOneFloor(Session *session)
{
    const QString from = someFloor(session);
    const QString to = someFloor(session);
    QMap<QString, QString> ids;
    for (int i = session->choices.number(3); i > 0; --i) {
        const QString id = session->choices.id();
        ids.insert(id, session->choices.id());
    }
    const bool usesIds = session->choices.oneIn(2);
    session->job.copyFloor(from, to, ids, usesIds);
    copyFloor(session, from, to, usesIds ? ids : QMap<QString, QString>());
}

void copyOne(Session *session)
{
    if (countOf(session->file.root()) > manyElements)
        return;
    if (session->choices.oneIn(3))
        copyOneSheet(session);
    else
        copyOneFloor(session);
}

} // namespace

const Operations &planOperations()
{
    static const Operations operations{readFloor, readBackground, setBackground, renameAll,  removeFloorOrSheet,
                                       readRoom,  setRoom,        renameRoom,    removeRoom, copyOne};
    return operations;
}
