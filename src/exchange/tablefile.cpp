#include "tablefile.h"

#include "jobwords.h"
#include "messagetext.h"
#include "tabletext.h"
#include "xmlnames.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// The words of the column "action", in the order of TableAction.
const QStringList &actionWords()
{
    static const QStringList words{QStringLiteral("add"), QStringLiteral("change"), QStringLiteral("rename"),
                                   QStringLiteral("move"), QStringLiteral("remove")};
    return words;
}

const QString &actionColumn()
{
    static const QString name = QStringLiteral("action");
    return name;
}

/// Returns the column that holds the new text of a part of a name, such as "new_floor".
QString newColumn(Content content)
{
    switch (content) {
    case Content::Floor:
        return QStringLiteral("new_floor");
    case Content::Room:
        return QStringLiteral("new_room");
    case Content::Sheet:
        return QStringLiteral("new_sheet");
    default:
        return QStringLiteral("new_id");
    }
}

/// Returns the columns of a file that are not columns of elements.
QStringList extraColumns(TableKind kind)
{
    QStringList names{actionColumn()};
    for (const Content content : nameContents(kind)) {
        // A room stays on its floor.
        if (kind != TableKind::Rooms || content != Content::Floor)
            names.append(newColumn(content));
    }
    return names;
}

} // namespace

QVector<Content> nameContents(TableKind kind)
{
    QVector<Content> contents;
    for (const TableColumn &column : columnsOf(kind)) {
        if (isName(column.content))
            contents.append(column.content);
    }
    return contents;
}

TableFile::TableFile(TableKind kind, const QByteArray &csv, const CsvOptions &options)
    : m_kind(kind)
{
    const CsvText text(csv, options);
    m_error = text.error();
    m_delimiter = text.delimiter();
    if (!m_error.isEmpty())
        return;
    const CsvProblem mistake = text.readTable([this](const CsvRow &heading) { return readHeading(heading); },
                                              [this](const CsvRow &row) { readRow(row); });
    if (mistake.row > 0)
        m_problems.append(mistake);
}

int TableFile::fieldOf(Content content) const
{
    const auto found = std::find_if(m_columns.cbegin(), m_columns.cend(),
                                    [content](const FileColumn &column) { return column.column->content == content; });
    return found == m_columns.cend() ? -1 : found->field;
}

const FileColumn *TableFile::columnOf(const TableColumn &column) const
{
    const auto found = std::find_if(m_columns.cbegin(), m_columns.cend(),
                                    [&column](const FileColumn &other) { return other.column == &column; });
    return found == m_columns.cend() ? nullptr : &*found;
}

void TableFile::report(int row, int field, const QString &message)
{
    m_problems.append({row, field + 1, message});
}

/// Returns false if every row under this heading would be wrong.
bool TableFile::readHeading(const CsvRow &heading)
{
    m_fieldsInHeading = int(heading.fields.size());
    for (int field = 0; field < m_fieldsInHeading; ++field)
        readColumnName(heading, field);
    requireColumns(heading);
    for (const Content content : nameContents(m_kind))
        m_nameParts.push_back({content, fieldOf(content), m_extraFields.value(newColumn(content), -1)});
    m_tagField = fieldOf(Content::Tag);
    m_actionField = m_extraFields.value(actionColumn(), -1);
    return m_problems.isEmpty();
}

void TableFile::readColumnName(const CsvRow &heading, int field)
{
    const QString name = heading.fields.at(field).trimmed();
    if (m_extraFields.contains(name))
        report(heading.number, field, TableText::tr("the column \"%1\" occurs twice").arg(excerpt(name)));
    else if (extraColumns(m_kind).contains(name))
        m_extraFields.insert(name, field);
    else if (!addElementColumn(name, field))
        report(heading.number, field, TableText::tr("unknown column \"%1\"").arg(excerpt(name)));
}

/// Adds a column of elements. Returns false if there is no column with that name.
bool TableFile::addElementColumn(const QString &name, int field)
{
    for (const TableColumn &column : columnsOf(m_kind)) {
        for (const TableUnit unit : {TableUnit::Pixels, TableUnit::Feet, TableUnit::Metres}) {
            if (columnName(column, unit) != name)
                continue;
            if (columnOf(column) != nullptr)
                report(1, field, TableText::tr("the column \"%1\" occurs twice").arg(excerpt(name)));
            m_columns.push_back({&column, name, unit, field});
            return true;
        }
    }
    return false;
}

void TableFile::requireColumns(const CsvRow &heading)
{
    if (fieldOf(Content::Tag) >= 0)
        return;
    for (const TableColumn &column : columnsOf(m_kind)) {
        if (isName(column.content) && fieldOf(column.content) < 0)
            report(heading.number, m_fieldsInHeading, TableText::tr("the column \"%1\" is missing").arg(column.name));
    }
}

void TableFile::readRow(const CsvRow &csv)
{
    if (csv.fields.size() > m_fieldsInHeading)
        report(csv.number, m_fieldsInHeading, TableText::tr("the row has more fields than the heading"));
    for (int field = 0; field < csv.fields.size(); ++field) {
        if (!firstLostCharacter(csv.fields.at(field), true).isEmpty())
            report(csv.number, field,
                   TableText::tr("\"%1\" contains a character that a file cannot hold")
                       .arg(excerpt(csv.fields.at(field))));
    }
    FileRow row;
    row.number = csv.number;
    row.fields = csv.fields;
    row.tag = field(row, m_tagField);
    readAction(&row);
    readName(&row);
    readNewParts(&row);
    m_rows.push_back(std::move(row));
}

void TableFile::readAction(FileRow *row)
{
    const QString word = field(*row, m_actionField).trimmed().toLower();
    if (word.isEmpty())
        return;
    const auto action = actionWords().indexOf(word);
    if (action >= 0)
        row->action = TableAction(action);
    else
        report(row->number, m_actionField,
               TableText::tr("\"%1\" is not one of add, change, rename, move and remove").arg(excerpt(word)));
}

void TableFile::readName(FileRow *row)
{
    row->name.reserve(int(m_nameParts.size()));
    for (const NamePart &part : m_nameParts) {
        const QString text = field(*row, part.field);
        const bool isRoom = part.content == Content::Room;
        row->name.append(isRoom && text == words::Undefined ? QString() : text);
        // A tag is enough.
        if (text.isEmpty() && !isRoom && row->tag.isEmpty())
            report(row->number, part.field,
                   part.content == Content::Id ? TableText::tr("the row has no id")
                                               : TableText::tr("the row does not say where the element is"));
    }
    if (m_kind == TableKind::Rooms && row->name.constLast() == words::Undefined)
        report(row->number, m_nameParts.back().field, TableText::tr("the room \"Undefined\" cannot be changed"));
}

void TableFile::readNewParts(FileRow *row)
{
    bool isRenamed = false;
    bool isMoved = false;
    for (std::size_t number = 0; number < m_nameParts.size(); ++number) {
        const NamePart &part = m_nameParts[number];
        const QString text = field(*row, part.newField);
        if (text.isEmpty())
            continue;
        const bool isUndefined = part.content == Content::Room && text == words::Undefined;
        row->newParts.insert(int(number), isUndefined ? QString() : text);
        (part.content == Content::Id ? isRenamed : isMoved) = true;
    }
    const int field = std::max(m_actionField, 0);
    if (row->action == TableAction::Rename && !isRenamed)
        report(row->number, field, TableText::tr("the row does not give a new_id"));
    else if (row->action == TableAction::Move && !isMoved)
        report(row->number, field, TableText::tr("the row does not say where the element is moved to"));
    else if ((isRenamed || isMoved) && (row->action == TableAction::Add || row->action == TableAction::Remove))
        report(row->number, field, TableText::tr("an element that is added or removed cannot be renamed or moved"));
}

} // namespace cabledoc
