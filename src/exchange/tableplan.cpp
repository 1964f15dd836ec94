#include "tableplan_p.h"

#include "jobwords.h"
#include "messagetext.h"
#include "planplaces.h"
#include "tablefile.h"
#include "tabletext.h"
#include "tablevalues.h"
#include "xmlnames.h"
#include "xmlscan.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// Returns what messages call an element of the kind.
QString nounOf(TableKind kind)
{
    switch (kind) {
    case TableKind::TestDefinitions:
        return TableText::tr("test definition");
    case TableKind::Bundles:
        return TableText::tr("bundle");
    case TableKind::Floors:
        return TableText::tr("floor");
    case TableKind::Rooms:
        return TableText::tr("room");
    case TableKind::Ports:
        return TableText::tr("port");
    case TableKind::VerticalRuns:
        return TableText::tr("vertical run");
    case TableKind::Points:
        return TableText::tr("point");
    case TableKind::FloorTexts:
    case TableKind::SheetTexts:
        return TableText::tr("text");
    case TableKind::Sheets:
        return TableText::tr("sheet");
    case TableKind::Devices:
        return TableText::tr("device");
    case TableKind::Bends:
        return TableText::tr("bend");
    case TableKind::Connections:
        return TableText::tr("connection");
    case TableKind::Cables:
        return TableText::tr("cable");
    case TableKind::ActivePorts:
        return TableText::tr("active port");
    case TableKind::Releases:
    case TableKind::Count:
        break;
    }
    return TableText::tr("release");
}

/// A row with the element that it leads to.
struct PlannedRow
{
    const FileRow *file = nullptr;
    int position = -1;   ///< of the element, or -1 if there is none
    QStringList name;    ///< parts of the name of the element
    QStringList newName; ///< parts of its name after the change; the same if it keeps its name

    bool isMoved() const { return newName != name; }
};

/// Returns the name of what holds the element with a name.
QStringList holderOf(const QStringList &name)
{
    return name.mid(0, name.size() - 1);
}

/// Compares a table with a document.
class Planner
{
public:
    Planner(const JobSnapshot &job, const TableFile &file, TablePlanData *plan)
        : m_job(job)
        , m_file(file)
        , m_plan(*plan)
        , m_kind(plan->kind)
        , m_names(job)
        , m_values(m_names, plan->kind, file, plan)
        , m_places(job)
    {
    }

    void plan();

private:
    // Finding the elements of the rows
    void findElement(PlannedRow *row);
    int roomOfTag(const FileRow &file) const;
    void findMovedElements();
    void findElementsOf(const std::vector<PlannedRow *> &chain, bool isCycle);
    void checkNames();
    bool isTaken(const QStringList &name, const TextMap<int> &leaving) const;

    // Comparing them with the rows
    void planRow(const PlannedRow &row);
    void planRemoval(const PlannedRow &row);
    QStringList holderTags(const PlannedRow &row);
    QStringList tagsOf(TableKind kind, int position) const;
    void checkRelease(const PlannedRow &row);
    void checkTag(const PlannedRow &row);
    void planChange(const PlannedRow &row, ElementChange change, QStringList words);
    int removedCables(int position) const;
    void addPlace(const PlannedRow &row, ElementChange *change);
    void append(const PlannedRow &row, const ElementChange &change, const QString &text);

    void report(const FileRow &row, int field, const QString &message)
    {
        m_plan.problems.append({row.number, field + 1, message});
    }
    void warn(const FileRow &row, int field, const QString &message)
    {
        m_plan.warnings.append({row.number, field + 1, message});
    }
    QString named(const QStringList &name) const
    {
        return nounOf(m_kind) + QLatin1String(" \"") + excerpt(nameText(name)) + QLatin1Char('"');
    }
    int idField() const { return std::max(m_file.fieldOf(Content::Id), 0); }

    const JobSnapshot &m_job;
    const TableFile &m_file;
    TablePlanData &m_plan;
    TableKind m_kind;
    ElementNames m_names;
    TableValues m_values;
    FreePlaces m_places;
    std::vector<PlannedRow> m_rows;
    int m_newReleases = 0;
    TextMap<bool> m_newTags;
};

void Planner::plan()
{
    m_rows.resize(m_file.rows().size());
    for (std::size_t number = 0; number < m_rows.size(); ++number) {
        m_rows[number].file = &m_file.rows()[number];
        findElement(&m_rows[number]);
    }
    findMovedElements();
    checkNames();
    m_plan.changes.reserve(int(m_rows.size()));
    m_plan.elements.reserve(int(m_rows.size()));
    for (const PlannedRow &row : m_rows)
        planRow(row);
}

/// Finds the element of a row, unless another row may have moved it.
void Planner::findElement(PlannedRow *row)
{
    const FileRow &file = *row->file;
    row->name = file.name;
    row->newName = file.name;
    if (!file.tag.isEmpty()) {
        row->position = m_kind == TableKind::Rooms ? roomOfTag(file) : m_names.findTag(m_kind, file.tag);
        if (row->position >= 0) {
            row->name = m_names.partsOf(m_kind, row->position);
            // The columns that the file lacks, and empty ids, leave the name as it is.
            const QVector<Content> contents = nameContents(m_kind);
            for (int part = 0; part < contents.size(); ++part) {
                const bool isGiven = m_file.fieldOf(contents.at(part)) >= 0
                                     && (contents.at(part) == Content::Room || !file.name.at(part).isEmpty());
                row->newName[part] = isGiven ? file.name.at(part) : row->name.at(part);
            }
        }
    }
    for (auto part = file.newParts.cbegin(); part != file.newParts.cend(); ++part)
        row->newName[part.key()] = part.value();
    if (row->position < 0 && !row->isMoved())
        row->position = m_names.find(m_kind, row->name);
}

/// Returns the position of the room with the tag of a row. Rooms on several floors can have the same tag.
int Planner::roomOfTag(const FileRow &file) const
{
    const int floor = m_names.find(TableKind::Floors, holderOf(file.name));
    if (floor < 0)
        return m_names.findTag(TableKind::Rooms, file.tag);
    const snapshot::Range &rooms = m_job.floors().at(floor).rooms;
    for (int position = rooms.first; position < rooms.end(); ++position) {
        if (m_job.rooms().at(position).element == file.tag)
            return position;
    }
    return -1;
}

/// Finds the elements of the rows that rename or move something. Rows form a chain if each of them gives its element
/// the name that the element of the next row has before.
void Planner::findMovedElements()
{
    TextMap<PlannedRow *> rowOfName;
    TextMap<bool> isNewName;
    for (PlannedRow &row : m_rows) {
        if (row.position < 0 && row.isMoved()) {
            rowOfName.insert({nameText(row.name), &row});
            isNewName.insert({nameText(row.newName), true});
        }
    }
    TextMap<bool> isDone;
    const auto findChain = [&](PlannedRow *first, bool isCycle) {
        std::vector<PlannedRow *> chain;
        for (auto next = rowOfName.find(nameText(first->name));
             next != rowOfName.end() && isDone.insert({next->first, true}).second;
             next = rowOfName.find(nameText(chain.back()->newName)))
            chain.push_back(next->second);
        findElementsOf(chain, isCycle);
    };
    for (const auto &[name, row] : rowOfName) {
        if (isNewName.find(name) == isNewName.end())
            findChain(row, false);
    }
    for (const auto &[name, row] : rowOfName) {
        if (isDone.find(name) == isDone.end())
            findChain(row, true);
    }
}

void Planner::findElementsOf(const std::vector<PlannedRow *> &chain, bool isCycle)
{
    // A chain has been followed before if its first name is gone and its last name exists.
    const bool isDone =
        !isCycle && m_names.find(m_kind, chain.front()->name) < 0 && m_names.find(m_kind, chain.back()->newName) >= 0;
    for (PlannedRow *row : chain) {
        if (isDone)
            row->name = row->newName;
        row->position = m_names.find(m_kind, row->name);
    }
}

/// Reports elements that two rows name, and names that two elements would have.
void Planner::checkNames()
{
    std::vector<int> rowOfElement(std::size_t(countOf(m_job, m_kind))); // 0 if there is none
    TextMap<int> rowOfName;                                             // names that elements get, or keep
    TextMap<int> leaving;                                               // names that elements lose
    for (const PlannedRow &row : m_rows) {
        if (row.position >= 0 && (row.isMoved() || row.file->action == TableAction::Remove))
            leaving.insert({nameText(row.name), row.position});
    }
    for (const PlannedRow &row : m_rows) {
        const int number = row.file->number;
        if (row.position >= 0) {
            int &rowBefore = rowOfElement[std::size_t(row.position)];
            if (rowBefore > 0) {
                report(*row.file, idField(),
                       TableText::tr("row %1 already is about the %2").arg(rowBefore).arg(named(row.name)));
                continue;
            }
            rowBefore = number;
        }
        if (row.file->action == TableAction::Remove)
            continue;
        const auto other = rowOfName.insert({nameText(row.newName), number});
        if (!other.second)
            report(*row.file, idField(),
                   TableText::tr("row %1 already uses the name \"%2\"")
                       .arg(QString::number(other.first->second), excerpt(nameText(row.newName))));
        else if ((row.position < 0 || row.isMoved()) && isTaken(row.newName, leaving))
            report(*row.file, idField(),
                   TableText::tr("the name \"%1\" is already used").arg(excerpt(nameText(row.newName))));
    }
}

/// Returns whether an element has the name and keeps it.
bool Planner::isTaken(const QStringList &name, const TextMap<int> &leaving) const
{
    const QVector<TableKind> kinds = kindsWithNamesOf(m_kind);
    return std::any_of(kinds.cbegin(), kinds.cend(), [&](TableKind kind) {
        return m_names.find(kind, name) >= 0 && (kind != m_kind || leaving.find(nameText(name)) == leaving.end());
    });
}

void Planner::planRow(const PlannedRow &row)
{
    const FileRow &file = *row.file;
    if (file.action == TableAction::Remove) {
        if (row.position >= 0)
            planRemoval(row);
        return;
    }
    const bool isNew = row.position < 0;
    const bool mustExist = row.isMoved() || (file.action && file.action != TableAction::Add);
    if (isNew && mustExist) {
        report(file, idField(), TableText::tr("there is no %1").arg(named(row.name)));
        return;
    }
    if (m_kind == TableKind::Releases)
        checkRelease(row);
    ElementChange change;
    change.action = isNew ? TableAction::Add : TableAction::Change;
    change.id = row.name.constLast();
    if (isNew || holderOf(row.newName) != holderOf(row.name))
        change.newHolders = holderTags(row);
    if (isNew) {
        change.tag = file.tag;
        checkTag(row);
    } else {
        const ElementView element = elementOf(m_job, m_kind, row.position);
        change.tag = element.tag;
        change.holders = tagsOf(holderKind(m_kind), element.holder);
    }
    if (row.newName.constLast() != change.id || isNew)
        change.attributes.append({words::Id, row.newName.constLast()});
    const QStringList words = m_values.read(file, row.position, &change);
    if (isNew) {
        addPlace(row, &change);
        append(row, change, TableText::tr("add %1").arg(named(row.name)));
    } else if (row.isMoved() || !words.isEmpty()) {
        planChange(row, change, words);
    }
}

/// Plans what differs between an element and its row. The words say what differs apart from the name.
void Planner::planChange(const PlannedRow &row, ElementChange change, QStringList words)
{
    if (row.isMoved()) {
        const bool staysInHolder = change.newHolders.isEmpty();
        change.action = staysInHolder ? TableAction::Rename : TableAction::Move;
        const QString text = staysInHolder ? TableText::tr("rename %1 to \"%2\"") : TableText::tr("move %1 to \"%2\"");
        words.prepend(text.arg(named(row.name), excerpt(nameText(row.newName))));
        append(row, change, words.join(QLatin1String(", ")));
    } else if (row.file->action == TableAction::Add) {
        report(*row.file, idField(), TableText::tr("there already is a different %1").arg(named(row.name)));
    } else {
        append(row, change, TableText::tr("change %1: %2").arg(named(row.name), words.join(QLatin1String(", "))));
    }
}

void Planner::planRemoval(const PlannedRow &row)
{
    const ElementView element = elementOf(m_job, m_kind, row.position);
    ElementChange change;
    change.action = TableAction::Remove;
    change.tag = element.tag;
    change.id = element.id;
    change.holders = tagsOf(holderKind(m_kind), element.holder);
    QString text = TableText::tr("remove %1").arg(named(row.name));
    const int cables = removedCables(row.position);
    if (cables > 0)
        text += TableText::tr(" with its cables: %1").arg(cables);
    append(row, change, text);
}

/// Returns the number of cables that are removed with an element.
int Planner::removedCables(int position) const
{
    if (m_kind == TableKind::Ports || m_kind == TableKind::VerticalRuns)
        return m_job.cableCountAt({elementKind(m_kind), position});
    if (m_kind != TableKind::Floors)
        return 0;
    const auto isOnFloor = [&](const snapshot::Target &end) {
        if (!end.exists())
            return false;
        const int room = end.kind == ElementKind::Ports ? m_job.ports().at(end.position).holder
                                                        : m_job.verticalRuns().at(end.position).holder;
        return m_job.rooms().at(room).holder == position;
    };
    return int(std::count_if(m_job.cables().cbegin(), m_job.cables().cend(), [&](const snapshot::Cable &cable) {
        return isOnFloor(cable.fromTarget) || isOnFloor(cable.toTarget);
    }));
}

/// Returns the tags of an element and of those that hold it, the innermost first. Returns no tags for a position of -1.
QStringList Planner::tagsOf(TableKind kind, int position) const
{
    if (position < 0)
        return {};
    const ElementView element = elementOf(m_job, kind, position);
    return QStringList(element.tag) + tagsOf(holderKind(kind), element.holder);
}

/// Returns the tags of the holders that the element of a row is to have. Reports a holder that does not exist.
QStringList Planner::holderTags(const PlannedRow &row)
{
    const TableKind kind = holderKind(m_kind);
    if (kind == TableKind::Count)
        return {};
    const QStringList name = holderOf(row.newName);
    const int holder = m_names.find(kind, name);
    if (holder >= 0)
        return tagsOf(kind, holder);
    const int floor = kind == TableKind::Rooms ? m_names.find(TableKind::Floors, holderOf(name)) : -1;
    // The room "Undefined" is added if a floor lacks it.
    if (floor >= 0 && name.constLast().isEmpty())
        return QStringList(words::Undefined) + tagsOf(TableKind::Floors, floor);
    report(*row.file, std::max(m_file.fieldOf(nameContents(m_kind).at(name.size() - 1)), 0),
           TableText::tr("there is no %1 \"%2\"").arg(nounOf(kind), excerpt(nameText(name))));
    return {};
}

/// Reports the name of a release that a file cannot have. Releases are attributes of one element.
void Planner::checkRelease(const PlannedRow &row)
{
    const QString &name = row.newName.constLast();
    if (!isXmlName(name))
        report(*row.file, idField(), TableText::tr("\"%1\" cannot be the name of an element").arg(excerpt(name)));
    if (row.position < 0 && m_job.releases().size() + ++m_newReleases > maximumAttributes)
        report(*row.file, idField(), TableText::tr("a job can hold at most %1 releases").arg(maximumAttributes));
}

/// Reports a tag that a new element cannot have.
void Planner::checkTag(const PlannedRow &row)
{
    const QString &tag = row.file->tag;
    if (tag.isEmpty())
        return;
    const int field = m_file.fieldOf(Content::Tag);
    if (!isXmlName(tag))
        report(*row.file, field, TableText::tr("\"%1\" cannot be the name of an element").arg(excerpt(tag)));
    // Cables name ports, vertical runs and points by their tags only, and connections devices and bends.
    const QVector<TableKind> kinds{TableKind::Ports,   TableKind::VerticalRuns, TableKind::Points,
                                   TableKind::Devices, TableKind::Bends,        m_kind};
    const bool isUsed =
        std::any_of(kinds.cbegin(), kinds.cend(), [&](TableKind kind) { return m_names.findTag(kind, tag) >= 0; });
    if (isUsed || !m_newTags.insert({tag, true}).second)
        report(*row.file, field, TableText::tr("the tag \"%1\" is already used").arg(excerpt(tag)));
    if (row.name.constLast().isEmpty())
        report(*row.file, idField(), TableText::tr("the row has no id"));
}

/// Gives a new room or port a place if its row has none.
void Planner::addPlace(const PlannedRow &row, ElementChange *change)
{
    const auto set = [change](const QString &attribute, double value) {
        change->attributes.append({attribute, toText(value)});
    };
    const auto isGiven = [&](const QString &attribute) {
        return std::any_of(m_file.columns().cbegin(), m_file.columns().cend(), [&](const FileColumn &column) {
            return column.column->attribute != nullptr && column.column->attribute->name == attribute
                   && !TableFile::field(*row.file, column.field).isEmpty();
        });
    };
    if (isGiven(words::X) || isGiven(words::Y))
        return;
    if (m_kind == TableKind::Rooms) {
        const int floor = m_names.find(TableKind::Floors, holderOf(row.newName));
        if (floor < 0)
            return;
        const RoomFields place = m_places.nextRoom(floor);
        const std::pair<QString, double> values[] = {{words::X, place.x},
                                                     {words::Y, place.y},
                                                     {words::Width, place.width},
                                                     {words::Height, place.height},
                                                     {words::NameX, place.roomNameX},
                                                     {words::NameY, place.roomNameY}};
        for (const auto &[attribute, value] : values) {
            if (!isGiven(attribute))
                set(attribute, value);
        }
    } else if (m_kind == TableKind::Ports || m_kind == TableKind::VerticalRuns) {
        const QPointF place = m_places.nextPort(m_names.find(TableKind::Rooms, holderOf(row.newName)));
        set(words::X, place.x());
        set(words::Y, place.y());
    }
}

void Planner::append(const PlannedRow &row, const ElementChange &change, const QString &text)
{
    m_plan.changes.append({change.action, row.file->number, text});
    m_plan.elements.append(change);
}

} // namespace

TablePlan::TablePlan(const JobSnapshot &document, TableKind kind, const QByteArray &csv, const CsvOptions &options)
    : d(std::make_unique<TablePlanData>())
{
    d->kind = kind;
    const TableFile file(kind, csv, options);
    d->error = file.error();
    d->problems = file.problems();
    if (d->error.isEmpty() && d->problems.isEmpty())
        Planner(document, file, d.get()).plan();
    const auto isBefore = [](const CsvProblem &a, const CsvProblem &b) {
        return std::tie(a.row, a.column) < std::tie(b.row, b.column);
    };
    std::stable_sort(d->problems.begin(), d->problems.end(), isBefore);
    std::stable_sort(d->warnings.begin(), d->warnings.end(), isBefore);
    // A name that is removed may be used again.
    const auto isRemoval = [](const ElementChange &change) { return change.action == TableAction::Remove; };
    if (std::any_of(d->elements.cbegin(), d->elements.cend(), isRemoval))
        std::stable_partition(d->elements.begin(), d->elements.end(), isRemoval);
    if (!d->problems.isEmpty()) {
        d->changes.clear();
        d->elements.clear();
    }
}

TablePlan::~TablePlan() = default;

const QString &TablePlan::error() const
{
    return d->error;
}

const QVector<CsvProblem> &TablePlan::problems() const
{
    return d->problems;
}

const QVector<CsvProblem> &TablePlan::warnings() const
{
    return d->warnings;
}

const QVector<TableChange> &TablePlan::changes() const
{
    return d->changes;
}

} // namespace cabledoc
