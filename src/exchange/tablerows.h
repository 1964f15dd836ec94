#pragma once

#include "tablefile.h"
#include "tableplan_p.h"

namespace cabledoc {

/// A row with the element that it leads to.
struct PlannedRow
{
    const FileRow *file = nullptr;
    int position = -1;   ///< of the element, or -1 if there is none
    QStringList name;    ///< parts of the name of the element
    QStringList newName; ///< parts of its name after the change; the same if it keeps its name

    bool isMoved() const { return newName != name; }
};

/// Returns whether the element of a row stays in the room, or on the floor or sheet, that it is in.
bool hasSameHolder(const PlannedRow &row);
/// Returns the name of what holds the element with a name.
QStringList holderOf(const QStringList &name);

/// Finds the elements that the rows of a file lead to.
class TableRows
{
public:
    TableRows(const ElementNames &names, const TableFile &file, TablePlanData *plan);

    /// Returns the rows with their elements. Adds problems to the plan if two rows lead to one element, or give one
    /// name to two elements.
    std::vector<PlannedRow> find();

private:
    void findElement(PlannedRow *row);
    QStringList nameByTag(const PlannedRow &row) const;
    int roomOfTag(const FileRow &file) const;
    void findMovedElements();
    void findElementsOf(const std::vector<PlannedRow *> &chain, bool isCycle);
    void checkNames();
    bool isTaken(const QStringList &name, const TextMap<int> &leaving) const;
    void report(const PlannedRow &row, const QString &message);

    const ElementNames &m_names;
    const TableFile &m_file;
    TablePlanData &m_plan;
    TableKind m_kind;
    std::vector<PlannedRow> m_rows;
};

} // namespace cabledoc
