#pragma once

#include "attributetable.h"
#include "elementnames.h"
#include "tablekind.h"

namespace cabledoc {

/// What a column of a table holds.
enum class Content {
    // The names of an element
    Tag,
    Id,
    Floor,
    Room,
    Sheet,
    // An attribute of the element
    Text,
    Number,
    Flag,
    Color,
    Use,        ///< what a port or cable is used for
    Definition, ///< the name of a test definition
    Bundle,     ///< the name of a bundle
    Position,   ///< pixels of a plan or sheet
    Height,     ///< feet
    // An attribute that names another element. The columns of one attribute follow one another.
    EndFloor,
    EndRoom,
    EndPort,
    EndSheet,
    EndDevice,
    Path, ///< the names of points, ports and vertical runs
    // What is not an attribute of the element
    PictureX,
    PictureY,
    PictureOption,
    Connected,    ///< the names of the vertical runs that have the cable as a connected one
    Disconnected, ///< the names of the vertical runs that have the cable as a disconnected one
    Types,        ///< the test definitions of a bundle
    ReleaseValue,
    // What only lists show
    CableCount,
    Status,
    MeasuredLength,
    EstimatedLength,
};

/// A column that a kind of table can have.
struct TableColumn
{
    QString name; ///< without the unit of a position, height or length
    Content content;
    const AttributeRow *attribute; ///< null if the column is not an attribute of the element
};

/// Returns the columns of a kind of table.
const QVector<TableColumn> &columnsOf(TableKind kind);
/// Returns the attributes of the elements in a kind of table.
const AttributeList &attributesOf(TableKind kind);

/// Returns whether the column holds a position on a plan or sheet.
bool isPosition(Content content);
/// Returns whether the column is a part of the name of another element.
bool isEnd(Content content);
/// Returns whether the texts of the column depend on a unit.
bool hasUnit(Content content);
/// Returns whether the column holds numbers.
bool isNumeric(const TableColumn &column);
/// Returns whether an import reads the column.
bool isImported(Content content);
/// Returns whether the column holds words of the element itself.
bool isSearchable(Content content);
/// Returns whether the column is a part of the names of elements.
bool isName(Content content);

/// Returns the name of a column with its unit, such as "x_m".
QString columnName(const TableColumn &column, TableUnit unit);

/// Returns the text that an attribute has after an element with the given text has been read and written.
QString canonicalText(TableKind kind, const AttributeRow &attribute, const QString &text);

/// Returns the colour of a cable: that of its type if the text is not the name of a colour.
QString cableColor(const JobSnapshot &job, const QString &text, const QString &type);

} // namespace cabledoc
