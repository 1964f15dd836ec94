#include "jobsnapshot.h"

#include "cablelength.h"
#include "childelements.h"
#include "flattree.h"
#include "jobeditor_p.h"
#include "jobwords.h"
#include "numbers.h"
#include "texthash.h"

#include <algorithm>
#include <array>
#include <set>

namespace cabledoc {

namespace {

/// Finds positions by texts. It keeps only the positions, and asks for the text of each.
class TextPositions
{
public:
    /// Makes room for a number of positions.
    void reserve(int count)
    {
        std::size_t size = 1;
        while (size < std::size_t(count) * 2)
            size *= 2;
        m_slots.assign(size, Slot());
    }

    /// Enters a position. If another one has the same text, returns that one and does nothing.
    template <typename TextOf> int insert(int position, TextOf textOf)
    {
        const QString &text = textOf(position);
        const quint32 hash = quint32(TextHash()(text));
        Slot &slot = m_slots[slotOf(text, hash, textOf)];
        if (slot.position < 0)
            slot = {hash, position};
        return slot.position;
    }

    /// Replaces a position by another one with the same text.
    template <typename TextOf> void replace(int position, TextOf textOf)
    {
        const QString &text = textOf(position);
        m_slots[slotOf(text, quint32(TextHash()(text)), textOf)].position = position;
    }

    template <typename TextOf> int find(const QString &text, TextOf textOf) const
    {
        return m_slots.empty() ? -1 : m_slots[slotOf(text, quint32(TextHash()(text)), textOf)].position;
    }

private:
    struct Slot
    {
        quint32 hash = 0;
        int position = -1;
    };

    /// Returns the slot of the text, or the empty slot for it.
    template <typename TextOf> std::size_t slotOf(const QString &text, quint32 hash, TextOf textOf) const
    {
        std::size_t slot = hash & (m_slots.size() - 1);
        while (m_slots[slot].position >= 0 && (m_slots[slot].hash != hash || textOf(m_slots[slot].position) != text))
            slot = (slot + 1) & (m_slots.size() - 1);
        return slot;
    }

    std::vector<Slot> m_slots; ///< their number is a power of two, and at least half of them are empty
};

/// Returns a function from positions to tags.
template <typename Elements> auto tagsIn(const Elements &elements)
{
    return [&elements](int position) -> const QString & { return elements.at(position).element; };
}
/// Returns a function from positions to ids.
template <typename Elements> auto idsIn(const Elements &elements)
{
    return [&elements](int position) -> const QString & { return elements.at(position).id; };
}

/// Positions of cables, grouped by the elements at which they end.
struct CablesOfEnds
{
    std::vector<int> begins; ///< for each end, where its cables begin in the list
    std::vector<int> cables;
};

} // namespace

struct JobSnapshot::Data
{
    QString error;

    QVector<snapshot::Floor> floors;
    QVector<snapshot::Room> rooms;
    QVector<snapshot::Port> ports;
    QVector<snapshot::VerticalRun> verticalRuns;
    QVector<snapshot::Point> points;
    QVector<snapshot::FreeText> floorTexts;
    QVector<snapshot::Sheet> sheets;
    QVector<snapshot::Device> devices;
    QVector<snapshot::Bend> bends;
    QVector<snapshot::FreeText> sheetTexts;
    QVector<snapshot::Connection> connections;
    QVector<snapshot::Cable> cables;
    QVector<snapshot::ActivePort> activePorts;

    QVector<snapshot::Definition> definitions;
    QVector<snapshot::Bundle> bundles;
    ContractorDataFields contractor;
    SiteDataFields site;
    QString notes;
    QMap<QString, QString> releases;
    QMap<QString, PrintSettingsFields> printSettings;
    QMap<QString, PageSettingsFields> pageSettings;
    QMap<QString, ScaleSettingsFields> scaleSettings;

    std::array<TextPositions, kindCount> tags;
    std::array<TextPositions, kindCount> ids;
    TextPositions definitionNames;
    TextPositions bundleNames;
    CablesOfEnds cablesOfPorts;
    CablesOfEnds cablesOfRuns;

    /// The file. The curves are read from it when they are asked for.
    FlatTree tree;
    std::vector<FlatNode> results; ///< of each cable

    /// Calls a function with the elements of a kind.
    template <typename Use> auto withElements(ElementKind kind, Use use) const
    {
        switch (kind) {
        case ElementKind::Cables:
            return use(cables);
        case ElementKind::Connections:
            return use(connections);
        case ElementKind::Sheets:
            return use(sheets);
        case ElementKind::Devices:
            return use(devices);
        case ElementKind::Vertices:
            return use(bends);
        case ElementKind::FreeTexts:
            return use(sheetTexts);
        case ElementKind::Floors:
            return use(floors);
        case ElementKind::Rooms:
            return use(rooms);
        case ElementKind::Ports:
            return use(ports);
        case ElementKind::ActivePorts:
            return use(activePorts);
        case ElementKind::VerticalRuns:
            return use(verticalRuns);
        case ElementKind::Points:
            return use(points);
        case ElementKind::FloorFreeTexts:
        case ElementKind::None:
            break;
        }
        return use(floorTexts);
    }

    int positionOfTag(ElementKind kind, const QString &tag) const
    {
        return withElements(kind,
                            [&](const auto &elements) { return tags[std::size_t(kind)].find(tag, tagsIn(elements)); });
    }

    int positionOfId(ElementKind kind, const QString &id) const
    {
        return withElements(kind,
                            [&](const auto &elements) { return ids[std::size_t(kind)].find(id, idsIn(elements)); });
    }
};

/// Makes the data of a snapshot from a tree.
class JobSnapshot::Builder
{
public:
    /// The root must be that of a job of the current version.
    static std::shared_ptr<const Data> dataOf(FlatTree tree)
    {
        const auto data = std::make_shared<Data>();
        data->tree = std::move(tree);
        Builder builder(data.get());
        builder.readAll(data->tree.documentElement());
        builder.findNames();
        builder.findTargets();
        return data;
    }

private:
    explicit Builder(Data *data)
        : m_data(*data)
        , m_attributes(&m_texts)
    {
    }

    void readAll(FlatNode root)
    {
        readFloors(root);
        readSheets(root);
        readList(connectionKind(), root, {}, &m_data.connections);
        readList(cableKind(), root, {}, &m_data.cables, [this](FlatNode node, snapshot::Cable *cable) {
            m_data.results.push_back(node.firstChildElement(words::TestResults));
            readFields(measurementAttributes(), m_data.results.back(), &cable->test);
        });
        readList(activePortKind(), root, {}, &m_data.activePorts, [this](FlatNode node, snapshot::ActivePort *port) {
            for (const FlatNode &result : ChildElements(node)) {
                if (result.hasName(words::ActiveTestResult))
                    port->results.append(readActiveTestResult(result));
            }
        });
        readDefinitions(root);
        readContents(root);
    }

    template <typename Fields> void readFields(const AttributeTable<Fields> &table, FlatNode element, Fields *fields)
    {
        m_attributes.read(element);
        table.read(fields, m_attributes);
    }

    QString attribute(FlatNode element, const QString &name)
    {
        m_attributes.read(element);
        return m_attributes.attribute(name);
    }

    // Lists

    /// An element that holds lists.
    struct Holder
    {
        FlatNode node;
        int position = -1;
        QStringList tags; ///< its own, and those of the elements that hold it
    };

    static const AttributeTable<PlannedCableFields> &tableOf(const Kind<CableFields> &)
    {
        return plannedCableAttributes();
    }
    template <typename Fields> static const AttributeTable<Fields> &tableOf(const Kind<Fields> &kind)
    {
        return kind.table;
    }

    static int numberOfChildren(FlatNode list)
    {
        int number = 0;
        for (FlatNode child = list.firstChild(); !child.isNull(); child = child.nextSibling())
            ++number;
        return number;
    }

    /// Appends the elements of a kind that are in the list of a holder. The function then gets each one.
    template <typename Fields, typename Item, typename Use> snapshot::Range
    readList(const Kind<Fields> &kind, FlatNode holderNode, const Holder &holder, QVector<Item> *items, Use use)
    {
        const int first = int(items->size());
        const FlatNode list = kind.listIn(holderNode);
        // The cables are nearly all of a big job. Moving them to a larger place would take long.
        if (kind.kind == ElementKind::Cables)
            items->reserve(numberOfChildren(list));
        for (const FlatNode &node : ChildElements(list)) {
            Item item;
            readFields(tableOf(kind), node, static_cast<typename Item::Fields *>(&item));
            item.element = node.tagName();
            item.line = node.line();
            item.holder = holder.position;
            if constexpr (std::is_base_of_v<Fields, Item>) {
                for (int i = 0; i < kind.holders.size(); ++i)
                    item.*kind.holders.at(i) = holder.tags.at(i);
            }
            use(node, &item);
            items->append(std::move(item));
        }
        return {first, int(items->size()) - first};
    }
    template <typename Fields, typename Item>
    snapshot::Range readList(const Kind<Fields> &kind, FlatNode holderNode, const Holder &holder, QVector<Item> *items)
    {
        return readList(kind, holderNode, holder, items, [](FlatNode, Item *) {});
    }
    template <typename Fields, typename Item>
    snapshot::Range readList(const Kind<Fields> &kind, const Holder &holder, QVector<Item> *items)
    {
        return readList(kind, holder.node, holder, items);
    }

    /// Returns the elements of the range that can be found by their tags.
    template <typename Item> static std::vector<Holder>
    reachable(const std::vector<FlatNode> &nodes, const QVector<Item> &items, int first, const Holder &holder)
    {
        std::vector<Holder> holders;
        std::set<QString> tags;
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const int position = first + int(i);
            const QString &tag = items.at(position).element;
            if (tags.insert(tag).second)
                holders.push_back({nodes[i], position, QStringList(tag) + holder.tags});
        }
        return holders;
    }

    void readFloors(FlatNode root)
    {
        const AttributeList &attributes = floorAttributes();
        const auto valueOf = [this, &attributes](const QString &name) {
            return m_attributes.hasAttribute(name) ? m_attributes.attribute(name) : attributes.defaultText(name);
        };
        std::vector<FlatNode> nodes;
        readList(floorKind(), root, {}, &m_data.floors, [&](FlatNode node, snapshot::Floor *floor) {
            nodes.push_back(node);
            floor->picturePosition = {valueOf(words::PictureX).toInt(), valueOf(words::PictureY).toInt()};
            floor->pictureOption = valueOf(words::BackgroundOption);
        });
        for (const Holder &holder : reachable(nodes, m_data.floors, 0, {})) {
            snapshot::Floor &floor = m_data.floors[holder.position];
            floor.points = readList(pointKind(), holder, &m_data.points);
            floor.texts = readList(floorFreeTextKind(), holder, &m_data.floorTexts);
            floor.rooms = readRooms(holder);
        }
    }

    snapshot::Range readRooms(const Holder &floor)
    {
        std::vector<FlatNode> nodes;
        const snapshot::Range range = readList(roomKind(), floor.node, floor, &m_data.rooms,
                                               [&nodes](FlatNode node, snapshot::Room *) { nodes.push_back(node); });
        for (const Holder &holder : reachable(nodes, m_data.rooms, range.first, floor)) {
            snapshot::Room &room = m_data.rooms[holder.position];
            room.ports = readList(portKind(), holder, &m_data.ports);
            room.verticalRuns = readList(vertRunKind(), holder, &m_data.verticalRuns);
        }
        return range;
    }

    void readSheets(FlatNode root)
    {
        std::vector<FlatNode> nodes;
        readList(sheetKind(), root, {}, &m_data.sheets,
                 [&nodes](FlatNode node, snapshot::Sheet *) { nodes.push_back(node); });
        for (const Holder &holder : reachable(nodes, m_data.sheets, 0, {})) {
            snapshot::Sheet &sheet = m_data.sheets[holder.position];
            sheet.devices = readList(deviceKind(), holder, &m_data.devices);
            sheet.bends = readList(verticeKind(), holder, &m_data.bends);
            sheet.texts = readList(freeTextKind(), holder, &m_data.sheetTexts);
        }
    }

    ActiveTestResult readActiveTestResult(FlatNode element)
    {
        ActiveTestResultFields fields;
        readFields(activeTestResultAttributes(), element, &fields);
        for (const FlatNode &value : ChildElements(element)) {
            if (!value.hasName(words::ActiveTestValue))
                continue;
            m_attributes.read(value);
            fields.values.append({m_attributes.attribute(words::Name), m_attributes.attribute(words::Value)});
        }
        return ActiveTestResult(fields);
    }

    // What both documents have

    template <typename Fields>
    void readShared(const AttributeTable<Fields> &table, FlatNode list, QVector<snapshot::Element<Fields>> *items)
    {
        for (const FlatNode &node : ChildElements(list)) {
            snapshot::Element<Fields> item;
            readFields(table, node, static_cast<Fields *>(&item));
            item.line = node.line();
            items->append(item);
        }
    }

    void readDefinitions(FlatNode root)
    {
        readShared(testDefAttributes(), root.firstChildElement(words::TestDefList), &m_data.definitions);
        const FlatNode list = root.firstChildElement(words::BundledCableList);
        readShared(bundledCableAttributes(), list, &m_data.bundles);
        int position = 0;
        for (const FlatNode &node : ChildElements(list)) {
            snapshot::Bundle &bundle = m_data.bundles[position++];
            bundle.tag = node.tagName();
            for (const FlatNode &type : ChildElements(node.firstChildElement(words::BundledCableTypeList)))
                bundle.types.append(attribute(type, words::Id));
        }
    }

    template <typename Fields> void readInfo(const AttributeTable<Fields> &table, FlatNode element, Fields *fields)
    {
        readFields(table, element, fields);
        AddressFields address;
        readFields(addressAttributes(), element.firstChildElement(words::Address), &address);
        fields->address = Address(address);
    }

    template <typename Fields>
    void readSettings(const AttributeTable<Fields> &table, FlatNode list, QMap<QString, Fields> *settings)
    {
        for (const FlatNode &node : ChildElements(list)) {
            Fields fields;
            readFields(table, node, &fields);
            if (!settings->contains(node.tagName()))
                settings->insert(node.tagName(), fields);
        }
    }

    void readContents(FlatNode root)
    {
        readInfo(contractorInfoAttributes(), root.firstChildElement(words::ContractorInfo), &m_data.contractor);
        readInfo(siteInfoAttributes(), root.firstChildElement(words::SiteInfo), &m_data.site);
        m_data.notes = attribute(root.firstChildElement(words::JobNotesText), words::Text);
        m_attributes.read(root.firstChildElement(words::Release));
        for (const XmlTokens::Attribute &release : m_attributes.all())
            m_data.releases.insert(m_texts.text(release.name), m_texts.text(release.value));
        const FlatNode settings = root.firstChildElement(words::SettingsList);
        readSettings(printSettingsAttributes(), settings.firstChildElement(words::PrintSettingsList),
                     &m_data.printSettings);
        readSettings(pageSettingsAttributes(), settings.firstChildElement(words::PageSettingsList),
                     &m_data.pageSettings);
        readSettings(scaleSettingsAttributes(), settings.firstChildElement(words::ScaleSettingsList),
                     &m_data.scaleSettings);
    }

    // Names and references

    void findNames()
    {
        for (const ElementSchema *schema : jobSchema()) {
            const auto kind = std::size_t(schema->kind);
            m_data.withElements(schema->kind, [this, kind](const auto &elements) {
                findNamesOf(elements, &m_data.tags[kind], &m_data.ids[kind]);
            });
        }
        enterNames(m_data.definitions, &m_data.definitionNames);
        enterNames(m_data.bundles, &m_data.bundleNames);
    }

    /// Finds tags and ids as the index of a document does: the first element with a tag, and of these the one with the
    /// first tag in string order that has an id.
    template <typename Elements>
    static void findNamesOf(const Elements &elements, TextPositions *tags, TextPositions *ids)
    {
        tags->reserve(int(elements.size()));
        ids->reserve(int(elements.size()));
        for (int position = 0; position < elements.size(); ++position) {
            if (tags->insert(position, tagsIn(elements)) != position)
                continue;
            const int known = ids->insert(position, idsIn(elements));
            if (elements.at(position).element < elements.at(known).element)
                ids->replace(position, idsIn(elements));
        }
    }

    template <typename Elements> static void enterNames(const Elements &elements, TextPositions *names)
    {
        names->reserve(int(elements.size()));
        for (int position = 0; position < elements.size(); ++position)
            names->insert(position, idsIn(elements));
    }

    snapshot::Target target(const QString &tag, const QVector<ElementKind> &kinds) const
    {
        for (const ElementKind kind : kinds) {
            const int position = tag.isEmpty() ? -1 : m_data.positionOfTag(kind, tag);
            if (position >= 0)
                return {kind, position};
        }
        return {};
    }

    QVector<int> cablePositions(const QStringList &tags) const
    {
        QVector<int> positions;
        for (const QString &tag : tags)
            positions.append(m_data.positionOfTag(ElementKind::Cables, tag));
        return positions;
    }

    void findTargets()
    {
        const QVector<ElementKind> &ends = cableKind().targetsOf(words::From);
        const QVector<ElementKind> &places = cableKind().targetsOf(words::Path);
        for (snapshot::Cable &cable : m_data.cables) {
            cable.fromTarget = target(cable.from, ends);
            cable.toTarget = target(cable.to, ends);
            for (const QString &tag : std::as_const(cable.path))
                cable.pathTargets.append(target(tag, places));
            cable.definition = m_data.definitionNames.find(cable.type, idsIn(m_data.definitions));
            cable.bundle = m_data.bundleNames.find(cable.bundleName, idsIn(m_data.bundles));
        }
        const QVector<ElementKind> &nodes = connectionKind().targetsOf(words::From);
        for (snapshot::Connection &connection : m_data.connections) {
            connection.fromTarget = target(connection.from, nodes);
            connection.toTarget = target(connection.to, nodes);
        }
        for (snapshot::VerticalRun &run : m_data.verticalRuns) {
            run.connectedCables = cablePositions(run.connected);
            run.disconnectedCables = cablePositions(run.disconnected);
        }
        for (snapshot::ActivePort &activePort : m_data.activePorts)
            activePort.portPosition = m_data.positionOfTag(ElementKind::Ports, activePort.port);
        m_data.cablesOfPorts = cablesOfEnds(ElementKind::Ports, int(m_data.ports.size()));
        m_data.cablesOfRuns = cablesOfEnds(ElementKind::VerticalRuns, int(m_data.verticalRuns.size()));
    }

    /// Calls a function with each cable and each end of the kind at which it ends.
    template <typename Use> void forEachEnd(ElementKind kind, Use use) const
    {
        for (int cable = 0; cable < m_data.cables.size(); ++cable) {
            const snapshot::Target &from = m_data.cables.at(cable).fromTarget;
            const snapshot::Target &to = m_data.cables.at(cable).toTarget;
            if (from.kind == kind)
                use(cable, from.position);
            if (to.kind == kind && !(from.kind == kind && from.position == to.position))
                use(cable, to.position);
        }
    }

    CablesOfEnds cablesOfEnds(ElementKind kind, int count) const
    {
        CablesOfEnds result;
        result.begins.assign(std::size_t(count) + 1, 0);
        forEachEnd(kind, [&](int, int end) { ++result.begins[std::size_t(end) + 1]; });
        for (std::size_t end = 1; end < result.begins.size(); ++end)
            result.begins[end] += result.begins[end - 1];
        result.cables.resize(std::size_t(result.begins.back()));
        std::vector<int> next = result.begins;
        forEachEnd(kind, [&](int cable, int end) { result.cables[std::size_t(next[std::size_t(end)]++)] = cable; });
        return result;
    }

    Data &m_data;
    SharedTexts m_texts;
    FlatAttributes m_attributes;
};

JobSnapshot::JobSnapshot()
    : d(std::make_shared<Data>())
{
}

JobSnapshot JobSnapshot::read(const QString &fileName, qint64 maximumFileSize)
{
    std::optional<FlatTree> tree = xmlfile::readCurrent(fileName, {words::Job}, maximumFileSize);
    if (tree)
        return JobSnapshot(Builder::dataOf(std::move(*tree)));
    // The document converts older files, reads everything that is XML, and tells what is wrong with a file.
    const std::shared_ptr<JobEditor> job = JobEditorPrivate::newDocument();
    job->setMaximumFileSize(maximumFileSize);
    JobEditorPrivate::of(*job).document.lineNumbers = xmlfile::LineNumbers::Read;
    if (job->Load(fileName))
        return JobSnapshot(*job);
    const auto data = std::make_shared<Data>();
    data->error = job->error();
    return JobSnapshot(data);
}

JobSnapshot::JobSnapshot(const JobEditor &job)
    : d(Builder::dataOf(FlatTree::fromDocument(JobEditorPrivate::of(job).tree.document())))
{
}

const QString &JobSnapshot::error() const
{
    return d->error;
}

const QVector<snapshot::Floor> &JobSnapshot::floors() const
{
    return d->floors;
}

const QVector<snapshot::Room> &JobSnapshot::rooms() const
{
    return d->rooms;
}

const QVector<snapshot::Port> &JobSnapshot::ports() const
{
    return d->ports;
}

const QVector<snapshot::VerticalRun> &JobSnapshot::verticalRuns() const
{
    return d->verticalRuns;
}

const QVector<snapshot::Point> &JobSnapshot::points() const
{
    return d->points;
}

const QVector<snapshot::FreeText> &JobSnapshot::floorTexts() const
{
    return d->floorTexts;
}

const QVector<snapshot::Sheet> &JobSnapshot::sheets() const
{
    return d->sheets;
}

const QVector<snapshot::Device> &JobSnapshot::devices() const
{
    return d->devices;
}

const QVector<snapshot::Bend> &JobSnapshot::bends() const
{
    return d->bends;
}

const QVector<snapshot::FreeText> &JobSnapshot::sheetTexts() const
{
    return d->sheetTexts;
}

const QVector<snapshot::Connection> &JobSnapshot::connections() const
{
    return d->connections;
}

const QVector<snapshot::Cable> &JobSnapshot::cables() const
{
    return d->cables;
}

const QVector<snapshot::ActivePort> &JobSnapshot::activePorts() const
{
    return d->activePorts;
}

const QVector<snapshot::Definition> &JobSnapshot::definitions() const
{
    return d->definitions;
}

const QVector<snapshot::Bundle> &JobSnapshot::bundles() const
{
    return d->bundles;
}

const ContractorDataFields &JobSnapshot::contractor() const
{
    return d->contractor;
}

const SiteDataFields &JobSnapshot::site() const
{
    return d->site;
}

const QString &JobSnapshot::notes() const
{
    return d->notes;
}

const QMap<QString, QString> &JobSnapshot::releases() const
{
    return d->releases;
}

const QMap<QString, PrintSettingsFields> &JobSnapshot::printSettings() const
{
    return d->printSettings;
}

const QMap<QString, PageSettingsFields> &JobSnapshot::pageSettings() const
{
    return d->pageSettings;
}

const QMap<QString, ScaleSettingsFields> &JobSnapshot::scaleSettings() const
{
    return d->scaleSettings;
}

int JobSnapshot::positionOfTag(ElementKind kind, const QString &tag) const
{
    return d->positionOfTag(kind, tag);
}

int JobSnapshot::positionOfId(ElementKind kind, const QString &id) const
{
    return d->positionOfId(kind, id);
}

int JobSnapshot::definitionOfName(const QString &name) const
{
    return d->definitionNames.find(name, idsIn(d->definitions));
}

int JobSnapshot::bundleOfName(const QString &name) const
{
    return d->bundleNames.find(name, idsIn(d->bundles));
}

QVector<int> JobSnapshot::cablesAt(const snapshot::Target &end) const
{
    const CablesOfEnds &ends = end.kind == ElementKind::Ports ? d->cablesOfPorts : d->cablesOfRuns;
    const bool isEnd = end.kind == ElementKind::Ports || end.kind == ElementKind::VerticalRuns;
    if (!isEnd || end.position < 0 || std::size_t(end.position) + 1 >= ends.begins.size())
        return {};
    const std::size_t position = std::size_t(end.position);
    return QVector<int>(ends.cables.begin() + ends.begins[position], ends.cables.begin() + ends.begins[position + 1]);
}

TestResults JobSnapshot::testResults(int cable) const
{
    if (cable < 0 || cable >= d->cables.size())
        return TestResults();
    FlatAttributes attributes;
    attributes.read(d->results[std::size_t(cable)]);
    return TestResults(testResultsAttributes().read(attributes));
}

float JobSnapshot::measuredLength(int cable, bool metric) const
{
    if (cable < 0 || cable >= d->cables.size())
        return -1.0F;
    const snapshot::Cable &measured = d->cables.at(cable);
    const int reading = shortestReading(measured.test.results);
    if (reading < 0)
        return -1.0F;
    const bool isDefined = measured.definition >= 0;
    const double lengthConstant =
        double(isDefined ? d->definitions.at(measured.definition).lengthConstant : TestDefFields().lengthConstant);
    return shownLength(correctedLength(reading, truncated(lengthConstant)), metric);
}

namespace {

template <typename Items> bool areEqual(const Items &a, const Items &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto &itemA, const auto &itemB) {
        using Fields = typename Items::value_type::Fields;
        return itemA.holder == itemB.holder
               && members(static_cast<const Fields &>(itemA)) == members(static_cast<const Fields &>(itemB));
    });
}

template <typename Fields> bool areEqual(const QMap<QString, Fields> &a, const QMap<QString, Fields> &b)
{
    return a.keys() == b.keys()
           && std::equal(a.begin(), a.end(), b.begin(),
                         [](const Fields &one, const Fields &other) { return members(one) == members(other); });
}

} // namespace

bool operator==(const JobSnapshot &a, const JobSnapshot &b)
{
    const auto haveEqual = [&](const auto member) { return areEqual((*a.d).*member, (*b.d).*member); };
    using D = JobSnapshot::Data;
    const auto sameFloorPictures = [&] {
        return std::equal(a.floors().begin(), a.floors().end(), b.floors().begin(),
                          [](const snapshot::Floor &one, const snapshot::Floor &other) {
                              return one.picturePosition == other.picturePosition
                                     && one.pictureOption == other.pictureOption;
                          });
    };
    const auto sameResults = [&] {
        for (int cable = 0; cable < a.cables().size(); ++cable) {
            if (a.testResults(cable) != b.testResults(cable))
                return false;
        }
        return true;
    };
    return haveEqual(&D::floors) && haveEqual(&D::rooms) && haveEqual(&D::ports) && haveEqual(&D::verticalRuns)
           && haveEqual(&D::points) && haveEqual(&D::floorTexts) && haveEqual(&D::sheets) && haveEqual(&D::devices)
           && haveEqual(&D::bends) && haveEqual(&D::sheetTexts) && haveEqual(&D::connections) && haveEqual(&D::cables)
           && haveEqual(&D::activePorts) && haveEqual(&D::definitions) && haveEqual(&D::bundles)
           && haveEqual(&D::printSettings) && haveEqual(&D::pageSettings) && haveEqual(&D::scaleSettings)
           && members(a.contractor()) == members(b.contractor()) && members(a.site()) == members(b.site())
           && a.notes() == b.notes() && a.releases() == b.releases() && sameFloorPictures() && sameResults();
}

} // namespace cabledoc
