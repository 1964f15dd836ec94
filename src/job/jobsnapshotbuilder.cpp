#include "childelements.h"
#include "jobsnapshot_p.h"
#include "jobwords.h"

#include <set>

namespace cabledoc {

/// Makes the data of a snapshot from a tree.
class JobSnapshot::Builder
{
public:
    static std::shared_ptr<const Data> dataOf(FlatTree tree)
    {
        const auto data = std::make_shared<Data>();
        data->tree = std::move(tree);
        Builder builder(data.get());
        builder.readAll(data->tree.documentElement());
        builder.findNames();
        builder.findTargets();
        builder.readPlan();
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
            m_data.histories.push_back(node.firstChildElement(words::TestHistory));
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
                m_data.hasRepeatedTags[kind] = findNamesOf(elements, &m_data.tags[kind], &m_data.ids[kind]);
            });
        }
        enterNames(m_data.definitions, &m_data.definitionNames);
        enterNames(m_data.bundles, &m_data.bundleNames);
    }

    /// Finds tags and ids as the index of a document does: the first element with a tag, and of these the one with the
    /// first tag in string order that has an id. Returns whether several elements have the same tag.
    template <typename Elements>
    static bool findNamesOf(const Elements &elements, TextPositions *tags, TextPositions *ids)
    {
        tags->reserve(int(elements.size()));
        ids->reserve(int(elements.size()));
        bool hasRepeatedTags = false;
        for (int position = 0; position < elements.size(); ++position) {
            if (tags->insert(position, tagsIn(elements)) != position) {
                hasRepeatedTags = true;
                continue;
            }
            const int known = ids->insert(position, idsIn(elements));
            if (elements.at(position).element < elements.at(known).element)
                ids->replace(position, idsIn(elements));
        }
        return hasRepeatedTags;
    }

    template <typename Elements> static void enterNames(const Elements &elements, TextPositions *names)
    {
        names->reserve(int(elements.size()));
        for (int position = 0; position < elements.size(); ++position) {
            // The name is null if the element does not have the attribute. A search does not find it then.
            if (!elements.at(position).id.isNull())
                names->insert(position, idsIn(elements));
        }
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
            if (!cable.bundleName.isEmpty())
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

    void readPlan()
    {
        std::vector<Storey> storeys;
        for (int position = 0; position < m_data.floors.size(); ++position) {
            const snapshot::Floor &floor = m_data.floors.at(position);
            if (m_data.positionOfTag(ElementKind::Floors, floor.element) == position)
                storeys.emplace_back(floor.element, floor.ceilingHeight);
        }
        m_data.estimate = LengthEstimate(ScaleSettings(m_data.scaleSettings.value(words::FloorPlanSettings)), storeys);
    }

    Data &m_data;
    SharedTexts m_texts;
    FlatAttributes m_attributes;
};

std::shared_ptr<const JobSnapshot::Data> JobSnapshot::dataOf(FlatTree tree)
{
    return Builder::dataOf(std::move(tree));
}

} // namespace cabledoc
