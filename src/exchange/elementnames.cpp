#include "elementnames.h"

#include "jobwords.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// What tells the tables of a kind apart.
struct KindRow
{
    QString name;
    ElementKind elements;
    TableKind holder;
};

const std::array<KindRow, std::size_t(TableKind::Count)> &kindRows()
{
    using Elements = ElementKind;
    using Table = TableKind;
    static const std::array<KindRow, std::size_t(Table::Count)> rows{{
        {QStringLiteral("test-definitions"), Elements::None, Table::Count},
        {QStringLiteral("bundles"), Elements::None, Table::Count},
        {QStringLiteral("floors"), Elements::Floors, Table::Count},
        {QStringLiteral("rooms"), Elements::Rooms, Table::Floors},
        {QStringLiteral("ports"), Elements::Ports, Table::Rooms},
        {QStringLiteral("vertical-runs"), Elements::VerticalRuns, Table::Rooms},
        {QStringLiteral("points"), Elements::Points, Table::Floors},
        {QStringLiteral("floor-texts"), Elements::FloorFreeTexts, Table::Floors},
        {QStringLiteral("sheets"), Elements::Sheets, Table::Count},
        {QStringLiteral("devices"), Elements::Devices, Table::Sheets},
        {QStringLiteral("bends"), Elements::Vertices, Table::Sheets},
        {QStringLiteral("sheet-texts"), Elements::FreeTexts, Table::Sheets},
        {QStringLiteral("connections"), Elements::Connections, Table::Count},
        {QStringLiteral("cables"), Elements::Cables, Table::Count},
        {QStringLiteral("active-ports"), Elements::ActivePorts, Table::Count},
        {QStringLiteral("releases"), Elements::None, Table::Count},
    }};
    return rows;
}

const KindRow &rowOf(TableKind kind)
{
    return kindRows()[std::size_t(kind)];
}

/// Calls a function with the elements of a kind other than releases.
template <typename Use> auto withElements(const JobSnapshot &job, TableKind kind, Use use)
{
    switch (kind) {
    case TableKind::TestDefinitions:
        return use(job.definitions());
    case TableKind::Bundles:
        return use(job.bundles());
    case TableKind::Floors:
        return use(job.floors());
    case TableKind::Rooms:
        return use(job.rooms());
    case TableKind::Ports:
        return use(job.ports());
    case TableKind::VerticalRuns:
        return use(job.verticalRuns());
    case TableKind::Points:
        return use(job.points());
    case TableKind::FloorTexts:
        return use(job.floorTexts());
    case TableKind::Sheets:
        return use(job.sheets());
    case TableKind::Devices:
        return use(job.devices());
    case TableKind::Bends:
        return use(job.bends());
    case TableKind::SheetTexts:
        return use(job.sheetTexts());
    case TableKind::Connections:
        return use(job.connections());
    case TableKind::Cables:
        return use(job.cables());
    case TableKind::ActivePorts:
    case TableKind::Releases:
    case TableKind::Count:
        break;
    }
    return use(job.activePorts());
}

const QString &noTag()
{
    static const QString none;
    return none;
}

const QString &tagIn(const TestDefFields & /*unused*/)
{
    return noTag();
}
const QString &tagIn(const BundledCableFields &fields)
{
    return fields.tag;
}
template <typename Fields> const QString &tagIn(const Fields &fields)
{
    return fields.element;
}

/// Returns the character that separates the parts of a name in an index. No text of a file has it.
QChar partSeparator()
{
    return QChar(0x1F);
}

QString keyOf(const QStringList &parts)
{
    return parts.join(partSeparator());
}

/// Returns what the operations find a room by: its floor and its tag.
QString keyOfRoom(const ElementView &room)
{
    return QString::number(room.holder) + partSeparator() + room.tag;
}

} // namespace

const QVector<TableKind> &tableKinds()
{
    static const QVector<TableKind> kinds = [] {
        QVector<TableKind> all;
        for (std::size_t number = 0; number < kindRows().size(); ++number)
            all.append(TableKind(number));
        return all;
    }();
    return kinds;
}

const QStringList &tableNames()
{
    static const QStringList names = [] {
        QStringList all;
        for (const KindRow &row : kindRows())
            all.append(row.name);
        return all;
    }();
    return names;
}

const QString &tableName(TableKind kind)
{
    return rowOf(kind).name;
}

std::optional<TableKind> tableOfName(const QString &name)
{
    const auto number = tableNames().indexOf(name);
    return number < 0 ? std::nullopt : std::make_optional(TableKind(number));
}

bool isTableOfTemplates(TableKind kind)
{
    return kind == TableKind::TestDefinitions || kind == TableKind::Bundles;
}

int countOf(const JobSnapshot &job, TableKind kind)
{
    if (kind == TableKind::Releases)
        return int(job.releases().size());
    return withElements(job, kind, [](const auto &elements) { return int(elements.size()); });
}

ElementView elementOf(const JobSnapshot &job, TableKind kind, int position)
{
    if (kind == TableKind::Releases) {
        const auto release = std::next(job.releases().cbegin(), position);
        return {noTag(), release.key(), -1, &release.value()};
    }
    return withElements(job, kind, [position](const auto &elements) -> ElementView {
        using Element = typename std::decay_t<decltype(elements)>::value_type;
        const Element &element = elements.at(position);
        const typename Element::Fields &fields = element;
        return {tagIn(fields), element.id, element.holder, &fields};
    });
}

bool isUndefinedRoom(TableKind kind, const ElementView &element)
{
    return kind == TableKind::Rooms && (element.tag == words::Undefined || element.id == words::Undefined);
}

ElementKind elementKind(TableKind kind)
{
    return rowOf(kind).elements;
}

TableKind tableOf(ElementKind kind)
{
    const auto row = std::find_if(kindRows().cbegin(), kindRows().cend(),
                                  [kind](const KindRow &other) { return other.elements == kind; });
    return TableKind(row - kindRows().cbegin());
}

TableKind holderKind(TableKind kind)
{
    return rowOf(kind).holder;
}

QVector<TableKind> kindsWithNamesOf(TableKind kind)
{
    switch (kind) {
    case TableKind::Ports:
    case TableKind::VerticalRuns:
        return {TableKind::Ports, TableKind::VerticalRuns};
    case TableKind::Devices:
    case TableKind::Bends:
        return {TableKind::Devices, TableKind::Bends};
    default:
        return {kind};
    }
}

ElementNames::ElementNames(const JobSnapshot &job)
    : m_job(job)
{
}

QStringList ElementNames::partsOf(TableKind kind, int position) const
{
    QStringList parts;
    const int holder = elementOf(m_job, kind, position).holder;
    if (holder >= 0)
        parts = partsOf(holderKind(kind), holder);
    parts.append(partOf(kind, position, 0));
    return parts;
}

QString ElementNames::partOf(TableKind kind, int position, int numberFromEnd) const
{
    const ElementView element = elementOf(m_job, kind, position);
    if (numberFromEnd > 0)
        return partOf(holderKind(kind), element.holder, numberFromEnd - 1);
    // The name of the room "Undefined" is empty.
    return isUndefinedRoom(kind, element) ? QString() : element.id;
}

bool ElementNames::isNamed(TableKind kind, int position) const
{
    return indexOf(kind).isNamed.at(position);
}

int ElementNames::find(TableKind kind, const QStringList &parts) const
{
    const Index &index = indexOf(kind);
    const auto found = index.positions.find(keyOf(parts));
    return found == index.positions.end() ? -1 : found->second;
}

snapshot::Target ElementNames::find(std::initializer_list<TableKind> kinds, const QStringList &parts) const
{
    for (const TableKind kind : kinds) {
        const int position = find(kind, parts);
        if (position >= 0)
            return {elementKind(kind), position};
    }
    return {};
}

int ElementNames::findTag(TableKind kind, const QString &tag) const
{
    return elementKind(kind) == ElementKind::None ? -1 : m_job.positionOfTag(elementKind(kind), tag);
}

const ElementNames::Index &ElementNames::indexOf(TableKind kind) const
{
    Index &index = m_indexes[std::size_t(kind)];
    if (!index.isMade)
        makeIndex(kind, &index);
    return index;
}

void ElementNames::makeIndex(TableKind kind, Index *index) const
{
    index->isMade = true;
    const int count = countOf(m_job, kind);
    index->positions.reserve(std::size_t(count));
    index->isNamed.resize(count);
    TextMap<int> roomTags;
    const QVector<TableKind> kinds = kindsWithNamesOf(kind);
    // The elements of a holder follow one another.
    int holder = -1;
    QString holderKey;
    for (int position = 0; position < count; ++position) {
        const ElementView element = elementOf(m_job, kind, position);
        const bool isHolderNamed = element.holder < 0 || isNamed(holderKind(kind), element.holder);
        if (!isHolderNamed || element.id.isEmpty() || !isReachable(kind, position, element))
            continue;
        if (kind == TableKind::Rooms && !roomTags.insert({keyOfRoom(element), position}).second)
            continue;
        if (element.holder != holder) {
            holder = element.holder;
            holderKey = keyOf(partsOf(holderKind(kind), holder)) + partSeparator();
        }
        const QString key = holderKey + partOf(kind, position, 0);
        const bool isTaken = std::any_of(kinds.cbegin(), kinds.cend(),
                                         [&](TableKind other) { return other < kind && hasKey(other, key); });
        index->isNamed[position] = !isTaken && index->positions.insert({key, position}).second;
    }
}

bool ElementNames::hasKey(TableKind kind, const QString &key) const
{
    const Index &index = indexOf(kind);
    return index.positions.find(key) != index.positions.end();
}

/// Returns whether the operations of the job find the element by its tag.
bool ElementNames::isReachable(TableKind kind, int position, const ElementView &element) const
{
    if (elementKind(kind) == ElementKind::None || kind == TableKind::Rooms)
        return true;
    // A tag that a port and a vertical run share leads to the port.
    return (!m_job.hasRepeatedTags(elementKind(kind)) || findTag(kind, element.tag) == position)
           && (kind != TableKind::VerticalRuns || findTag(TableKind::Ports, element.tag) < 0);
}

} // namespace cabledoc
