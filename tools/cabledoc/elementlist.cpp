#include "elementlist.h"

#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "table.h"
#include "tableparameters.h"

#include <cabledoc/jobsnapshot.h>
#include <cabledoc/naturalorder.h>

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <numeric>

using cabledoc::ElementTable;

namespace {

/// A condition such as "type=CAT6", "type!=CAT6" or "id~^A-".
class Condition
{
public:
    explicit Condition(const QString &text)
    {
        static const QRegularExpression form(QStringLiteral("^(\\w+)(=|!=|~|!~)(.*)$"),
                                             QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = form.match(text);
        m_column = match.captured(1);
        m_isNegative = match.captured(2).startsWith(QLatin1Char('!'));
        m_isPattern = match.captured(2).endsWith(QLatin1Char('~'));
        m_text = match.captured(3);
        if (m_isPattern)
            m_pattern = QRegularExpression(m_text, QRegularExpression::CaseInsensitiveOption);
    }

    /// Returns the name of the column, or an empty text if the condition is wrong.
    const QString &column() const { return m_column; }
    bool hasValidPattern() const { return !m_isPattern || m_pattern.isValid(); }
    bool holdsFor(const QString &cell) const
    {
        return (m_isPattern ? m_pattern.match(cell).hasMatch() : cell == m_text) != m_isNegative;
    }

private:
    QString m_column;
    bool m_isNegative = false;
    bool m_isPattern = false;
    QString m_text;
    QRegularExpression m_pattern;
};

QString namesOf(const ElementTable &table)
{
    QStringList names;
    for (const ElementTable::Column &column : table.columns())
        names.append(column.name);
    return names.join(QLatin1String(", "));
}

ExitCode unknownColumn(const CommandLine &line, const ElementTable &table, const QString &name)
{
    return line.usageError(Program::tr("there is no column \"%1\"; there are %2").arg(name, namesOf(table)));
}

} // namespace

ExitCode ElementList::read(const CommandLine &line, cabledoc::TableKind kind, const QString &usualOrder)
{
    cabledoc::JobSnapshot document;
    if (const ExitCode error = readDocument(line, &document))
        return error;
    return choose(line, document, kind, usualOrder);
}

ExitCode ElementList::choose(const CommandLine &line, const cabledoc::JobSnapshot &document, cabledoc::TableKind kind,
                             const QString &usualOrder)
{
    cabledoc::TableUnit unit = cabledoc::TableUnit::Pixels;
    if (const ExitCode error = readTableUnit(line, &unit))
        return error;
    m_kind = kind;
    m_table = std::make_unique<ElementTable>(document, kind, unit);
    m_rows.resize(m_table->rowCount());
    std::iota(m_rows.begin(), m_rows.end(), 0);
    for (const auto select : {&ElementList::selectColumns, &ElementList::selectRows}) {
        if (const ExitCode error = (this->*select)(line))
            return error;
    }
    return sortRows(line, line.isSet("sort") ? line.value("sort") : usualOrder);
}

ExitCode ElementList::selectColumns(const CommandLine &line)
{
    m_hasChosenColumns = line.isSet("columns");
    if (!m_hasChosenColumns) {
        m_columns.resize(m_table->columns().size());
        std::iota(m_columns.begin(), m_columns.end(), 0);
        return Done;
    }
    for (const QString &name : line.value("columns").split(QLatin1Char(','))) {
        const int column = m_table->columnOf(name.trimmed());
        if (column < 0)
            return unknownColumn(line, *m_table, name);
        m_columns.append(column);
    }
    return Done;
}

ExitCode ElementList::selectRows(const CommandLine &line)
{
    for (const QString &text : line.values("where")) {
        const Condition condition(text);
        if (condition.column().isEmpty())
            return line.usageError(
                Program::tr("\"%1\" is not a condition such as type=CAT6, type!=CAT6 or id~^A").arg(text));
        if (!condition.hasValidPattern())
            return line.usageError(Program::tr("\"%1\" is not a regular expression").arg(text));
        const int column = m_table->columnOf(condition.column());
        if (column < 0)
            return unknownColumn(line, *m_table, condition.column());
        m_rows.erase(std::remove_if(m_rows.begin(), m_rows.end(),
                                    [&](int row) { return !condition.holdsFor(m_table->text(row, column)); }),
                     m_rows.end());
    }
    return Done;
}

ExitCode ElementList::sortRows(const CommandLine &line, const QString &order)
{
    const QStringList names = order.isEmpty() ? QStringList() : order.split(QLatin1Char(','));
    // The last column is the least important one, so that it is sorted first.
    for (auto name = names.crbegin(); name != names.crend(); ++name) {
        const bool isDescending = name->startsWith(QLatin1Char('-'));
        const int column = m_table->columnOf(isDescending ? name->mid(1) : *name);
        if (column < 0)
            return unknownColumn(line, *m_table, *name);
        cabledoc::sortByText(
            &m_rows, [this, column](int row) { return m_table->text(row, column); },
            isDescending ? cabledoc::SortOrder::Descending : cabledoc::SortOrder::Ascending);
    }
    return Done;
}

void ElementList::keepOnly(const QString &column, const QString &text)
{
    const int number = m_table->columnOf(column);
    m_rows.erase(
        std::remove_if(m_rows.begin(), m_rows.end(), [&](int row) { return m_table->text(row, number) != text; }),
        m_rows.end());
}

ExitCode ElementList::print(const CommandLine &line, const char *form) const
{
    if (line.isSet("csv"))
        return printData(line.output(), m_table->toCsv(m_columns, m_rows));
    if (!line.isSet("json"))
        return printText(line.output(), text());
    const auto objectOf = [this](int number) {
        QJsonObject object;
        for (const int column : m_columns) {
            const ElementTable::Column &description = m_table->columns().at(column);
            const QString cell = m_table->text(m_rows.at(number), column);
            if (!description.isNumber)
                object.insert(description.name, cell);
            else
                object.insert(description.name, cell.isEmpty() ? QJsonValue() : QJsonValue(cell.toDouble()));
        }
        return object;
    };
    return printJson(
        line.output(), form,
        {{{QStringLiteral("file"), line.argument(0)}, {QStringLiteral("kind"), cabledoc::tableName(m_kind)}},
         QStringLiteral("rows"),
         int(m_rows.size()),
         objectOf});
}

/// Returns the list as text. Without --columns, it has those with texts, except for the tags.
QString ElementList::text() const
{
    if (m_rows.isEmpty())
        return QString();
    std::vector<TextColumn> columns;
    for (const int column : m_columns) {
        const ElementTable::Column &description = m_table->columns().at(column);
        columns.push_back({description.name, description.isNumber, {}});
        columns.back().cells.reserve(m_rows.size());
    }
    for (const int row : m_rows) {
        for (std::size_t number = 0; number < columns.size(); ++number)
            columns[number].cells.append(inOneLine(m_table->text(row, m_columns.at(int(number)))));
    }
    const auto isLeftOut = [](const TextColumn &column) {
        return column.heading == QLatin1String("tag")
               || std::all_of(column.cells.cbegin(), column.cells.cend(),
                              [](const QString &cell) { return cell.isEmpty(); });
    };
    if (!m_hasChosenColumns)
        columns.erase(std::remove_if(columns.begin(), columns.end(), isLeftOut), columns.end());
    return textOf(columns);
}
