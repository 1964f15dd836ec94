#pragma once

#include "cabledoc_export.h"
#include "csvoptions.h"
#include "tablekind.h"

#include <QtCore/QByteArray>
#include <QtCore/QVector>

#include <memory>

namespace cabledoc {

class JobSnapshot;

/// The elements of one kind in a job or template as a table of texts, with one row for each element in the order of the
/// file. The room "Undefined", which every floor has, is not a row.
///
/// Elements are named as the user sees them: a port has the columns "floor", "room" and "id". The room of a port in
/// "Undefined" is empty. A cable names its ends in the columns "from_floor", "from_room" and "from_port", and so on. An
/// end that does not exist is empty. Its path is a list such as "Ground/Point 1; Ground/Office/7; Ground//Riser". A
/// backslash comes before a "/", ";" or backslash that belongs to a name.
///
/// Positions are in pixels and heights in feet by default. In other units the names of these columns end with "_ft" or
/// "_m". Positions need the scale of the floor plans (settings "FloorPlan_Settings") or of the sheets
/// ("NetView_Settings"). Without a scale they are empty. Flags are "1" or "0".
///
/// Rows and columns are counted from 0. Those that are asked for must exist.
class CABLEDOC_EXPORT ElementTable
{
public:
    /// A column of the table.
    struct Column
    {
        QString name;      ///< with the unit, such as "x_m"
        bool isNumber;     ///< whether it holds numbers
        bool isImportable; ///< whether a TablePlan reads it
        bool isSearchable; ///< whether it holds words of the element itself, and not numbers or names of others
    };

    /// Makes the table of a kind. It keeps a copy of the snapshot, which shares its memory.
    ElementTable(const JobSnapshot &document, TableKind kind, TableUnit unit = TableUnit::Pixels);
    ~ElementTable();
    Q_DISABLE_COPY(ElementTable)

    /// Returns all columns. The first one is "tag" if the elements have tags.
    const QVector<Column> &columns() const;
    /// Returns the number of the column with the given name, or -1 if there is none.
    int columnOf(const QString &name) const;
    /// Returns the number of rows.
    int rowCount() const;
    /// Returns the position of the element of a row in the snapshot.
    int positionOf(int row) const;
    /// Returns the text of a row in a column.
    QString text(int row, int column) const;
    /// Returns the whole name of the element of a row, such as "Ground/Office/7".
    QString name(int row) const;
    /// Returns the given columns of the given rows as CSV, with a heading.
    QByteArray toCsv(const QVector<int> &columns, const QVector<int> &rows, const CsvStyle &style = {}) const;
    /// Returns whether the name leads to the element. It does not if a part of it is empty, or if an element before it
    /// has the same name.
    bool isNamed(int row) const;

private:
    struct Data;

    const std::unique_ptr<Data> d;
};

/// What exportTable() writes.
struct TableExportOptions
{
    TableUnit unit = TableUnit::Pixels; ///< unit of positions and heights
    bool tags = false;                  ///< whether the table has the column "tag", and elements without a name
    CsvStyle style;                     ///< form of the text
};

/// The result of exportTable().
struct TableExport
{
    /// Why the table cannot be made, or empty if it was made.
    QString error;
    /// Table as CSV.
    QByteArray text;
    /// Number of elements that are not in the table because their names do not lead to them.
    int leftOut = 0;
};

/// Returns the table of a kind as CSV, with all columns that a TablePlan reads.
///
/// Importing the tables of all kinds into a job without elements, in the order of TableKind, and exporting them again
/// gives the same bytes. Without the column "tag", the table lacks the elements that their names do not lead to. A
/// table of positions cannot be made in feet or metres if the plan has no scale. The document is not changed.
CABLEDOC_EXPORT TableExport exportTable(const JobSnapshot &document, TableKind kind,
                                        const TableExportOptions &options = {});

} // namespace cabledoc
