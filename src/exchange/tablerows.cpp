#include "tablerows.h"

#include "messagetext.h"
#include "tabletext.h"

#include <algorithm>

namespace cabledoc {

QStringList holderOf(const QStringList &name)
{
    return name.mid(0, name.size() - 1);
}

bool hasSameHolder(const PlannedRow &row)
{
    return std::equal(row.name.cbegin(), std::prev(row.name.cend()), row.newName.cbegin());
}

TableRows::TableRows(const ElementNames &names, const TableFile &file, TablePlanData *plan)
    : m_names(names)
    , m_file(file)
    , m_plan(*plan)
    , m_kind(plan->kind)
{
}

std::vector<PlannedRow> TableRows::find()
{
    m_rows.resize(m_file.rows().size());
    for (std::size_t number = 0; number < m_rows.size(); ++number) {
        m_rows[number].file = &m_file.rows()[number];
        findElement(&m_rows[number]);
    }
    findMovedElements();
    checkNames();
    return std::move(m_rows);
}

void TableRows::report(const PlannedRow &row, const QString &message)
{
    m_plan.problems.append({row.file->number, std::max(m_file.fieldOf(Content::Id), 0) + 1, message});
}

/// Finds the element of a row, unless another row may have moved it.
void TableRows::findElement(PlannedRow *row)
{
    const FileRow &file = *row->file;
    row->name = file.name;
    row->newName = file.name;
    if (!file.tag.isEmpty())
        row->position = m_kind == TableKind::Rooms ? roomOfTag(file) : m_names.findTag(m_kind, file.tag);
    if (row->position >= 0) {
        row->name = m_names.partsOf(m_kind, row->position);
        row->newName = nameByTag(*row);
    }
    for (auto part = file.newParts.cbegin(); part != file.newParts.cend(); ++part)
        row->newName[part.key()] = part.value();
    if (row->position < 0 && !row->isMoved())
        row->position = m_names.find(m_kind, row->name);
}

/// Returns the name that a row with a tag gives to its element. The columns that the file lacks, and empty ids, leave
/// the name as it is.
QStringList TableRows::nameByTag(const PlannedRow &row) const
{
    QStringList name = row.name;
    const QVector<Content> contents = nameContents(m_kind);
    for (int part = 0; part < contents.size(); ++part) {
        const QString &text = row.file->name.at(part);
        if (m_file.fieldOf(contents.at(part)) >= 0 && (contents.at(part) == Content::Room || !text.isEmpty()))
            name[part] = text;
    }
    return name;
}

/// Returns the position of the room with the tag of a row. Rooms on several floors can have the same tag.
int TableRows::roomOfTag(const FileRow &file) const
{
    const int floor = m_names.find(TableKind::Floors, holderOf(file.name));
    if (floor < 0)
        return m_names.findTag(TableKind::Rooms, file.tag);
    const snapshot::Range &rooms = m_names.job().floors().at(floor).rooms;
    for (int position = rooms.first; position < rooms.end(); ++position) {
        if (m_names.job().rooms().at(position).element == file.tag)
            return position;
    }
    return -1;
}

/// Finds the elements of the rows that rename or move something. Rows form a chain if each of them gives its element
/// the name that the element of the next row has before.
void TableRows::findMovedElements()
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

void TableRows::findElementsOf(const std::vector<PlannedRow *> &chain, bool isCycle)
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
void TableRows::checkNames()
{
    std::vector<int> rowOfElement(std::size_t(countOf(m_names.job(), m_kind))); // 0 if there is none
    TextMap<int> rowOfName;                                                     // names that elements get, or keep
    TextMap<int> leaving;                                                       // names that elements lose
    bool areNamesNew = false;
    for (const PlannedRow &row : m_rows) {
        areNamesNew = areNamesNew || row.position < 0 || row.isMoved();
        if (row.position >= 0 && (row.isMoved() || row.file->action == TableAction::Remove))
            leaving.insert({nameText(row.name), row.position});
    }
    for (const PlannedRow &row : m_rows) {
        const int number = row.file->number;
        if (row.position >= 0) {
            int &rowBefore = rowOfElement[std::size_t(row.position)];
            if (rowBefore > 0) {
                report(row, TableText::tr("row %1 already changes this: %2")
                                .arg(QString::number(rowBefore), namedElement(m_kind, row.name)));
                continue;
            }
            rowBefore = number;
        }
        if (row.file->action == TableAction::Remove || !areNamesNew)
            continue;
        const auto other = rowOfName.insert({nameText(row.newName), number});
        if (!other.second)
            report(row, TableText::tr("row %1 already uses the name \"%2\"")
                            .arg(QString::number(other.first->second), excerpt(nameText(row.newName))));
        else if ((row.position < 0 || row.isMoved()) && isTaken(row.newName, leaving))
            report(row, TableText::tr("the name \"%1\" is already used").arg(excerpt(nameText(row.newName))));
    }
}

/// Returns whether an element has the name and keeps it.
bool TableRows::isTaken(const QStringList &name, const TextMap<int> &leaving) const
{
    const QVector<TableKind> kinds = kindsWithNamesOf(m_kind);
    return std::any_of(kinds.cbegin(), kinds.cend(), [&](TableKind kind) {
        return m_names.find(kind, name) >= 0 && (kind != m_kind || leaving.find(nameText(name)) == leaving.end());
    });
}

} // namespace cabledoc
