#pragma once

#include "flattree.h"
#include "jobschema.h"
#include "jobsnapshot.h"
#include "lengthestimate.h"
#include "texthash.h"

#include <array>
#include <vector>

namespace cabledoc {

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

    /// Returns which part of the list has the cables of an end. It is empty for an end that does not exist.
    snapshot::Range cablesOf(int end) const
    {
        if (end < 0 || std::size_t(end) + 1 >= begins.size())
            return {};
        const int first = begins[std::size_t(end)];
        return {first, begins[std::size_t(end) + 1] - first};
    }
};

/// The data of a snapshot.
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
    std::array<bool, kindCount> hasRepeatedTags{};
    TextPositions definitionNames;
    TextPositions bundleNames;
    CablesOfEnds cablesOfPorts;
    CablesOfEnds cablesOfRuns;
    LengthEstimate estimate;

    /// The file. The curves are read from it when they are asked for.
    FlatTree tree;
    std::vector<FlatNode> results;   ///< of each cable
    std::vector<FlatNode> histories; ///< of each cable
    FlatNode resultsOf(int cable) const;
    QVector<FlatNode> historyOf(int cable) const;

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

    /// Returns the cables that end at ports or at vertical runs. Returns an empty list for other kinds.
    const CablesOfEnds &cablesOfEnds(ElementKind kind) const;
    /// Returns the places that a cable passes, from end to end.
    PassedPlaces placesOf(const snapshot::Cable &cable) const;

private:
    PassedPlace placeOf(const snapshot::Target &target) const;
};

} // namespace cabledoc
