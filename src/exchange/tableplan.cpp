#include "tableplan_p.h"

#include "jobwords.h"
#include "messagetext.h"
#include "planplaces.h"
#include "tablefile.h"
#include "tablerows.h"
#include "tabletext.h"
#include "tablevalues.h"
#include "xmlnames.h"
#include "xmlscan.h"

#include <algorithm>

namespace cabledoc {

namespace {

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
    void planRow(const PlannedRow &row);
    void planRemoval(const PlannedRow &row);
    ElementChange changeOf(const PlannedRow &row) const;
    QStringList holderTags(const PlannedRow &row);
    QStringList tagsOf(TableKind kind, int position) const;
    void checkRelease(const PlannedRow &row);
    void checkTag(const PlannedRow &row);
    int removedCables(int position) const;
    void addPlace(const PlannedRow &row, ElementChange *change);
    void append(const PlannedRow &row, ElementChange change);

    void report(const FileRow &row, int field, const QString &message)
    {
        m_plan.problems.append({row.number, field + 1, message});
    }
    QString named(const QStringList &name) const { return namedElement(m_kind, name); }
    int idField() const { return std::max(m_file.fieldOf(Content::Id), 0); }

    const JobSnapshot &m_job;
    const TableFile &m_file;
    TablePlanData &m_plan;
    TableKind m_kind;
    ElementNames m_names;
    TableValues m_values;
    FreePlaces m_places;
    int m_newReleases = 0;
    TextMap<bool> m_newTags;
};

void Planner::plan()
{
    const std::vector<PlannedRow> rows = TableRows(m_names, m_file, &m_plan).find();
    m_plan.changes.reserve(int(rows.size()));
    m_plan.elements.reserve(rows.size());
    for (const PlannedRow &row : rows)
        planRow(row);
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
    ElementChange change = changeOf(row);
    change.action = isNew ? TableAction::Add : TableAction::Change;
    if (isNew || !hasSameHolder(row))
        change.newHolders = holderTags(row);
    if (isNew) {
        change.tag = file.tag;
        checkTag(row);
    }
    if (isNew || row.newName.constLast() != row.name.constLast())
        change.attributes.append({words::Id, row.newName.constLast()});
    m_values.read(file, row.position, &change);
    if (isNew) {
        addPlace(row, &change);
    } else if (row.isMoved()) {
        change.action = change.newHolders.isEmpty() ? TableAction::Rename : TableAction::Move;
    } else if (change.differences.empty()) {
        return;
    } else if (file.action == TableAction::Add) {
        report(file, idField(), TableText::tr("there already is a different %1").arg(named(row.name)));
    }
    append(row, std::move(change));
}

void Planner::planRemoval(const PlannedRow &row)
{
    ElementChange change = changeOf(row);
    change.action = TableAction::Remove;
    change.removedCables = removedCables(row.position);
    append(row, std::move(change));
}

/// Returns a change of the element of a row that does not change anything yet.
ElementChange Planner::changeOf(const PlannedRow &row) const
{
    ElementChange change;
    change.name = row.name;
    change.newName = row.newName;
    if (row.position >= 0) {
        const ElementView element = elementOf(m_job, m_kind, row.position);
        change.tag = element.tag;
        if (m_kind == TableKind::Rooms)
            change.floor = m_job.floors().at(element.holder).element;
    }
    return change;
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

void Planner::append(const PlannedRow &row, ElementChange change)
{
    m_plan.changes.append({change.action, row.file->number});
    m_plan.elements.push_back(std::move(change));
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
    sortByPlace(d->problems);
    sortByPlace(d->warnings);
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

QString TablePlan::changeText(int index) const
{
    const ElementChange &change = d->elements[std::size_t(index)];
    QStringList words;
    for (const ElementChange::Difference &difference : change.differences)
        words.append(QStringLiteral("%1 \"%2\" -> \"%3\"")
                         .arg(difference.column, excerpt(difference.before), excerpt(difference.after)));
    const QString name = namedElement(d->kind, change.name);
    switch (change.action) {
    case TableAction::Add:
        return TableText::tr("add %1").arg(name);
    case TableAction::Change:
        return TableText::tr("change %1: %2").arg(name, words.join(QLatin1String(", ")));
    case TableAction::Rename:
        words.prepend(TableText::tr("rename %1 to \"%2\"").arg(name, excerpt(nameText(change.newName))));
        return words.join(QLatin1String(", "));
    case TableAction::Move:
        words.prepend(TableText::tr("move %1 to \"%2\"").arg(name, excerpt(nameText(change.newName))));
        return words.join(QLatin1String(", "));
    case TableAction::Remove:
        break;
    }
    const QString text = TableText::tr("remove %1").arg(name);
    return change.removedCables > 0 ? text + TableText::tr(" with its cables: %1").arg(change.removedCables) : text;
}

} // namespace cabledoc
