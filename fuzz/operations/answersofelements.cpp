#include "answers.h"

#include "fuzzing.h"
#include "records.h"

#include <set>

namespace {

using Name = const QString &;

/// The queries of each kind. A query that a kind does not have is null.
struct ElementQueries
{
    Kind kind;
    bool (JobEditor::*exists)(Name, bool) const;
    QString (JobEditor::*idOfTag)(Name) const;
    QString (JobEditor::*tagOfId)(Name) const;
    Fields (*recordByTag)(const JobEditor &, Name);
    Fields (*recordById)(const JobEditor &, Name);
};

template <auto Getter> Fields record(const JobEditor &job, Name name)
{
    return fieldsOf((job.*Getter)(name));
}

const std::vector<ElementQueries> &elementQueries()
{
    using J = JobEditor;
    static const std::vector<ElementQueries> queries{
        {Kind::Cables, &J::cableExists, &J::getCableID, nullptr, nullptr, nullptr},
        {Kind::Connections, &J::connectionExists, nullptr, &J::getConnectionTagById, record<&J::getConnection>,
         nullptr},
        {Kind::ActivePorts, &J::activePortExists, &J::getActivePortIdByTag, &J::getActivePortTagById,
         record<&J::getActivePortByTag>, record<&J::getActivePortById>},
        {Kind::Floors, &J::floorExists, &J::getFloorIdByTag, &J::getFloorTagById, nullptr, nullptr},
        {Kind::Sheets, &J::sheetExists, &J::getSheetIdByTag, &J::getSheetTagById, record<&J::getSheet>, nullptr},
        {Kind::Rooms, &J::roomExists, nullptr, nullptr, nullptr, nullptr},
        {Kind::Ports, &J::portExists, &J::getPortIdByTag, &J::getPortTagById, record<&J::getPortByTag>,
         record<&J::getPortById>},
        {Kind::VertRuns, &J::vertRunExists, &J::getVertRunIdByTag, &J::getVertRunTagById, record<&J::getVertRunByTag>,
         record<&J::getVertRunById>},
        {Kind::Points, &J::pointExists, &J::getPointIdByTag, &J::getPointTagById, record<&J::getPointByTag>,
         record<&J::getPointById>},
        {Kind::FloorTexts, &J::floorFreeTextExists, &J::getFloorFreeTextIdByTag, &J::getFloorFreeTextTagById,
         record<&J::getFloorFreeTextByTag>, record<&J::getFloorFreeTextById>},
        {Kind::Devices, &J::deviceExists, &J::getDeviceIdByTag, &J::getDeviceTagById, record<&J::getDeviceByTag>,
         record<&J::getDeviceById>},
        {Kind::Vertices, &J::verticeExists, &J::getVerticeIdByTag, &J::getVerticeTagById, record<&J::getVerticeByTag>,
         record<&J::getVerticeById>},
        {Kind::Texts, &J::freeTextExists, &J::getFreeTextIdByTag, &J::getFreeTextTagById, record<&J::getFreeTextByTag>,
         record<&J::getFreeTextById>},
    };
    return queries;
}

/// A query for a single field of a record.
struct FieldQuery
{
    QString field;
    QString (*answer)(const JobEditor &, Name);
};

template <auto Getter> QString field(const JobEditor &job, Name tag)
{
    return textOf((job.*Getter)(tag));
}

template <auto Getter> QString fieldX(const JobEditor &job, Name tag)
{
    return textOf((job.*Getter)(tag).x());
}

template <auto Getter> QString fieldY(const JobEditor &job, Name tag)
{
    return textOf((job.*Getter)(tag).y());
}

const std::vector<FieldQuery> &fieldQueries(Kind kind)
{
    using J = JobEditor;
    static const std::map<Kind, std::vector<FieldQuery>> queries{
        {Kind::Cables,
         {{"tag", field<&J::getCableElement>},
          {"use", field<&J::getCableUse>},
          {"to", field<&J::getCableTo>},
          {"from", field<&J::getCableFrom>},
          {"type", field<&J::getCableType>},
          {"path", field<&J::getCablePath>},
          {"bundleName", field<&J::getCableBundleName>},
          {"bundleNum", field<&J::getCableBundleNum>},
          {"bundleGroupNum", field<&J::getCableBundleGroupNum>},
          {"color", field<&J::getCableColor>},
          {"default_type", field<&J::getCableDefaultType>}}},
        {Kind::Connections, {{"to", field<&J::getConnectionTo>}, {"from", field<&J::getConnectionFrom>}}},
        {Kind::ActivePorts, {{"port", field<&J::getActivePortPort>}}},
        {Kind::Floors, {{"pic", field<&J::getFloorBackgroundPic>}}},
        {Kind::Ports,
         {{"x", fieldX<&J::getPortPos>},
          {"y", fieldY<&J::getPortPos>},
          {"use", field<&J::getPortUse>},
          {"icon_scale", field<&J::getPortIconScale>},
          {"drop_height", field<&J::getPortDropHeight>},
          {"holder", field<&J::getPortRoom>},
          {"floor", field<&J::getPortFloor>}}},
        {Kind::VertRuns,
         {{"x", fieldX<&J::getVertRunPos>},
          {"y", fieldY<&J::getVertRunPos>},
          {"use", field<&J::getVertRunUse>},
          {"icon_scale", field<&J::getVertRunIconScale>},
          {"drop_height", field<&J::getVertRunDropHeight>},
          {"holder", field<&J::getVertRunRoom>},
          {"floor", field<&J::getVertRunFloor>},
          {"connected", field<&J::getVertRunConnected>},
          {"disconnected", field<&J::getVertRunDisconnected>}}},
        {Kind::Points,
         {{"x", fieldX<&J::getPointPos>}, {"y", fieldY<&J::getPointPos>}, {"holder", field<&J::getPointFloor>}}},
        {Kind::FloorTexts,
         {{"x", fieldX<&J::getFloorFreeTextPos>},
          {"y", fieldY<&J::getFloorFreeTextPos>},
          {"text", field<&J::getFloorFreeTextText>},
          {"font", field<&J::getFloorFreeTextFontFamily>},
          {"font_size", field<&J::getFloorFreeTextFontSize>},
          {"bold", field<&J::getFloorFreeTextBold>},
          {"italic", field<&J::getFloorFreeTextItalic>},
          {"color", field<&J::getFloorFreeTextColor>},
          {"holder", field<&J::getFloorFreeTextFloor>}}},
        {Kind::Devices,
         {{"x", fieldX<&J::getDevicePos>},
          {"y", fieldY<&J::getDevicePos>},
          {"type", field<&J::getDeviceType>},
          {"icon_scale", field<&J::getDeviceIconScale>},
          {"info", field<&J::getDeviceInfo>},
          {"holder", field<&J::getDeviceSheet>}}},
        {Kind::Vertices,
         {{"x", fieldX<&J::getVerticePos>}, {"y", fieldY<&J::getVerticePos>}, {"holder", field<&J::getVerticeSheet>}}},
        {Kind::Texts,
         {{"x", fieldX<&J::getFreeTextPos>},
          {"y", fieldY<&J::getFreeTextPos>},
          {"text", field<&J::getFreeTextText>},
          {"font", field<&J::getFreeTextFontFamily>},
          {"font_size", field<&J::getFreeTextFontSize>},
          {"bold", field<&J::getFreeTextBold>},
          {"italic", field<&J::getFreeTextItalic>},
          {"color", field<&J::getFreeTextColor>},
          {"holder", field<&J::getFreeTextSheet>}}},
    };
    static const std::vector<FieldQuery> none;
    const auto found = queries.find(kind);
    return found == queries.end() ? none : found->second;
}

using NamesOn = QStringList (JobEditor::*)(Name, bool) const;
using NamesIn = QStringList (JobEditor::*)(Name, Name, bool) const;

/// Collects the tags and ids of all children of lists with the given name, including those that cannot be reached.
void gatherNames(const PlainElement &element, const QString &list, std::set<QString> *names)
{
    for (const PlainElement &child : element.children) {
        if (element.name == list) {
            names->insert(child.name);
            names->insert(child.text("id"));
        }
        gatherNames(child, list, names);
    }
}

class Comparison
{
public:
    Comparison(const JobEditor &job, PlainJob *file)
        : m_job(job)
        , m_file(*file)
    {
        for (const PlainKind &kind : plainKinds()) {
            std::set<QString> names{"none", ""};
            gatherNames(m_file.root(), kind.list, &names);
            m_names[kind.kind] = names;
        }
    }

    void compareKind(const ElementQueries &queries)
    {
        m_first.clear();
        m_tagOfId.clear();
        for (const Place &place : m_file.counted(queries.kind)) {
            const QString tag = place.element->name;
            m_first[tag] = place;
            const auto [known, isNew] = m_tagOfId.emplace(place.element->text("id"), tag);
            if (!isNew && tag < known->second)
                known->second = tag;
        }
        for (const QString &name : m_names[queries.kind])
            compareName(queries, name);
    }

    void compareFloorsAndSheets()
    {
        for (const auto &[kind, tags, ids] : {std::tuple(Kind::Floors, m_job.getFloorTags(), m_job.getFloorIds()),
                                              std::tuple(Kind::Sheets, m_job.getSheetTags(), m_job.getSheetIds())}) {
            QStringList expectedTags = m_file.tags(kind);
            expectedTags.sort();
            QStringList expectedIds;
            for (const QString &tag : expectedTags)
                expectedIds.append(m_file.element(kind, tag)->text("id"));
            expectAnswer(tags, expectedTags, "all tags, in string order");
            expectAnswer(ids, expectedIds, "all ids, in the order of their tags");
        }
    }

    void compareLists()
    {
        using J = JobEditor;
        const std::tuple<Kind, Kind, NamesOn> lists[] = {
            {Kind::Floors, Kind::Rooms, &J::getRooms},
            {Kind::Floors, Kind::Points, &J::getPoints},
            {Kind::Floors, Kind::FloorTexts, &J::getFloorFreeTexts},
            {Kind::Sheets, Kind::Devices, &J::getDevices},
            {Kind::Sheets, Kind::Vertices, &J::getVertices},
            {Kind::Sheets, Kind::Texts, &J::getFreeTexts},
        };
        for (const auto &[holder, held, namesOn] : lists) {
            for (const QString &tag : m_names[holder]) {
                const PlainElement *list = childOf(m_file.element(holder, tag), plainKind(held).list);
                for (const bool byTag : {false, true})
                    expectAnswer((m_job.*namesOn)(tag, byTag), namesIn(list, byTag), "what is on a floor or sheet");
            }
        }
    }

    void compareRooms()
    {
        for (const QString &floor : m_file.tags(Kind::Floors) + QStringList{"none", ""}) {
            for (const QString &room : m_names[Kind::Rooms])
                compareRoom(floor, room);
        }
    }

private:
    void compareName(const ElementQueries &queries, const QString &name)
    {
        const Place place = placeOf(name);
        const auto tagOfId = m_tagOfId.find(name);
        const bool isId = tagOfId != m_tagOfId.end();
        const QString tag = isId ? tagOfId->second : QString();
        expectAnswer((m_job.*queries.exists)(name, true), place.element != nullptr, "whether there is a tag");
        expectAnswer((m_job.*queries.exists)(name, false), isId, "whether there is an id");
        const QString id = place.element == nullptr ? QString() : place.element->text("id");
        if (queries.idOfTag != nullptr)
            expectAnswer((m_job.*queries.idOfTag)(name), id, "the id of a tag");
        if (queries.tagOfId != nullptr)
            expectAnswer((m_job.*queries.tagOfId)(name), tag, "the first tag of an id");
        const Fields fields = m_file.record(queries.kind, place);
        if (queries.recordByTag != nullptr)
            expectAnswer(queries.recordByTag(m_job, name), fields, "the record of a tag");
        if (queries.recordById != nullptr)
            expectAnswer(queries.recordById(m_job, name), m_file.record(queries.kind, placeOf(tag)),
                         "the record of an id");
        for (const FieldQuery &query : fieldQueries(queries.kind))
            expectAnswer(query.answer(m_job, name), fields.at(query.field), qPrintable(query.field));
    }

    Place placeOf(const QString &tag) const
    {
        const auto found = m_first.find(tag);
        return found == m_first.end() ? Place() : found->second;
    }

    void compareRoom(const QString &floor, const QString &room)
    {
        PlainElement *element = m_file.room(floor, room).element;
        for (const bool byTag : {false, true}) {
            expectAnswer(m_job.getPorts(floor, room, byTag), namesIn(childOf(element, "Port_List"), byTag),
                         "the ports of a room");
            expectAnswer(m_job.getVertRuns(floor, room, byTag), namesIn(childOf(element, "VerticalRun_List"), byTag),
                         "the vertical runs of a room");
            expectAnswer(m_job.roomExistsOnFloor(room, floor, byTag), roomExists(room, floor, byTag),
                         "whether a room is on a floor");
            expectAnswer(m_job.roomExistsOnFloor(floor, room, byTag), roomExists(floor, room, byTag),
                         "whether a floor has a room");
        }
    }

    bool roomExists(const QString &first, const QString &second, bool byTag)
    {
        const bool isSwapped =
            m_file.element(Kind::Floors, second) == nullptr && m_file.element(Kind::Floors, first) != nullptr;
        const QString &floor = isSwapped ? first : second;
        const QString &room = isSwapped ? second : first;
        return (byTag ? m_file.room(floor, room) : m_file.roomById(floor, room)).element != nullptr;
    }

    const JobEditor &m_job;
    PlainJob &m_file;
    std::map<Kind, std::set<QString>> m_names;
    /// First elements of the compared kind by their tags.
    std::map<QString, Place> m_first;
    /// Tags of the compared kind by their ids.
    std::map<QString, QString> m_tagOfId;
};

} // namespace

void compareElements(const JobEditor &job, PlainJob *file)
{
    Comparison comparison(job, file);
    for (const ElementQueries &queries : elementQueries())
        comparison.compareKind(queries);
    comparison.compareFloorsAndSheets();
    comparison.compareLists();
    comparison.compareRooms();
}
