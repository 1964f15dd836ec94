#pragma once

#include "cabledoc_export.h"
#include "csvoptions.h"
#include "tablekind.h"

#include <QtCore/QByteArray>
#include <QtCore/QVector>

#include <memory>

class BktEditor;
class JobEditor;

namespace cabledoc {

class JobSnapshot;
struct TablePlanData;

/// What a row of a table does with an element.
enum class TableAction {
    Add,    ///< adds it
    Change, ///< changes something of it
    Rename, ///< gives it another id, and perhaps changes something else
    Move,   ///< puts it into another room, or on another floor or sheet, and perhaps changes something else
    Remove, ///< removes it
};

/// A change of a job or template that a row of a table asks for.
struct TableChange
{
    /// What happens to the element.
    TableAction action = TableAction::Add;
    /// Number of the row in the table.
    int row = 0;
};

/// The changes that a table asks for in a job or template.
///
/// A table is CSV text. Its first row names the columns, in any order: those of an ElementTable, and these:
///
///     column                        holds
///     action                        "add", "change", "rename", "move" or "remove"; if it is empty, the element is
///                                   changed, or added if there is none with the name
///     new_id                        the new id of an element that is renamed
///     new_floor, new_room, new_sheet where an element is moved to
///     tag                           the tag of the element. If it is not empty, it leads to the element, and the other
///                                   columns of the name are changed like any other column.
///
/// The columns of the name must be there. All others may be missing. Each length may be in any unit: "x" is in pixels,
/// "x_ft" in feet, "x_m" in metres. An empty number leaves what the element has. An empty text is stored. Columns that
/// only lists have, such as "status", are skipped, and so are rows with only empty fields.
///
/// A new room or port without a position is put where there is space for it, in a row below the other rooms of its
/// floor, or in rows in its room. Whatever else a new element lacks gets its default.
///
/// Renaming and moving keep the tag and all that belongs to the element. Renaming a test definition or a bundle also
/// changes the cables that name it. If a row asks for what is already done, it changes nothing: importing a table again
/// never changes anything. The only exception are names that are exchanged with one another.
///
/// Something is only removed by a row that says so. What belongs to it is removed too, such as the cables of a port.
class CABLEDOC_EXPORT TablePlan
{
public:
    /// Compares a table with a job or template. The document is not changed.
    TablePlan(const JobSnapshot &document, TableKind kind, const QByteArray &csv, const CsvOptions &options = {});
    /// Destroys the plan.
    ~TablePlan();
    Q_DISABLE_COPY(TablePlan)

    /// Returns why the text cannot be read as a table, or an empty text if it can.
    const QString &error() const;
    /// Returns what is wrong with the table, in the order of its rows.
    const QVector<CsvProblem> &problems() const;
    /// Returns what may be a mistake in the table, in the order of its rows. A word that is not known is reported once.
    const QVector<CsvProblem> &warnings() const;
    /// Returns the changes in the order of the rows. There are none if there is an error or a problem.
    const QVector<TableChange> &changes() const;
    /// Returns a translated description of the change at an index of changes(), such as
    /// "change cable A-1: type "CAT5E" -> "CAT6"".
    QString changeText(int index) const;

    /// Makes the changes in a job, which is marked as changed if there are any. The job must have the content from
    /// which the plan was made. Does nothing if there is an error or a problem.
    void applyTo(JobEditor &job) const;
    /// Makes the changes in a template. Does nothing if templates do not have the table. See isTableOfTemplates().
    void applyTo(BktEditor &bkt) const;

private:
    std::unique_ptr<TablePlanData> d;
};

} // namespace cabledoc
