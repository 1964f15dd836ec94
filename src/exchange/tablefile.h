#pragma once

#include "csvtext.h"
#include "tablecolumns.h"
#include "tableplan.h"

#include <QtCore/QMap>

#include <optional>
#include <vector>

namespace cabledoc {

/// A column that a file has.
struct FileColumn
{
    const TableColumn *column;
    QString name; ///< with the unit
    TableUnit unit;
    int field; ///< number of its field, from 0
};

/// A row of a file.
struct FileRow
{
    int number = 0;
    QStringList fields;
    std::optional<TableAction> action; ///< nothing if the row does not say
    QString tag;
    QStringList name;            ///< parts of the name of the element
    QMap<int, QString> newParts; ///< parts of the name that are to change, by their numbers
};

/// A table as it was read. Everything that can be checked without the document has been checked.
class TableFile
{
public:
    TableFile(TableKind kind, const QByteArray &csv, const CsvOptions &options);

    const QString &error() const { return m_error; }
    const QVector<CsvProblem> &problems() const { return m_problems; }
    const std::vector<FileColumn> &columns() const { return m_columns; }
    const std::vector<FileRow> &rows() const { return m_rows; }
    char delimiter() const { return m_delimiter; }

    /// Returns the number of the field of the first column with that content, or -1 if the file has none.
    int fieldOf(Content content) const;
    /// Returns where the file has a column, or a null pointer if it does not.
    const FileColumn *columnOf(const TableColumn &column) const;
    /// Returns the field with that number, or an empty text if the number is -1 or the row is shorter.
    static QString field(const FileRow &row, int number) { return row.fields.value(number); }

private:
    bool readHeading(const CsvRow &heading);
    void readColumnName(const CsvRow &heading, int field);
    bool addElementColumn(const QString &name, int field);
    void requireColumns(const CsvRow &heading);
    void readRow(const CsvRow &csv);
    void readAction(FileRow *row);
    void readName(FileRow *row);
    void readNewParts(FileRow *row);
    void report(int row, int field, const QString &message);

    TableKind m_kind;
    QString m_error;
    QVector<CsvProblem> m_problems;
    std::vector<FileColumn> m_columns;
    QMap<QString, int> m_extraFields; ///< the fields of the columns "action", "new_id" and so on

    /// Where a part of the names of elements and its new text are. A field is -1 if the file does not have it.
    struct NamePart
    {
        Content content;
        int field;
        int newField;
    };
    std::vector<NamePart> m_nameParts;
    int m_tagField = -1;
    int m_actionField = -1;
    std::vector<FileRow> m_rows;
    char m_delimiter = ',';
    int m_fieldsInHeading = 0;
};

/// Returns the contents of the columns that make the name of an element of the kind, the outermost first.
QVector<Content> nameContents(TableKind kind);

} // namespace cabledoc
