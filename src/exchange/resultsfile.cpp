#include "resultsfile.h"

#include "messagetext.h"
#include "resultstext.h"
#include "xmlnames.h"

#include <algorithm>

namespace cabledoc {

ResultsFile::ResultsFile(const QByteArray &csv, const CsvOptions &options, const ResultsMapping &mapping)
    : m_mapping(mapping)
{
    m_fields.fill(-1);
    const CsvText text(csv, options);
    m_error = text.error();
    m_delimiter = text.delimiter();
    if (!m_error.isEmpty())
        return;
    const CsvProblem mistake = text.readTable([this](const CsvRow &heading) { return readHeading(heading); },
                                              [this](const CsvRow &row) { m_rows.push_back(row); });
    if (mistake.row > 0)
        m_problems.append(mistake);
}

void ResultsFile::report(int field, const QString &message)
{
    m_problems.append({1, field + 1, message});
}

/// Returns false if every row under this heading would be wrong.
bool ResultsFile::readHeading(const CsvRow &heading)
{
    m_heading = heading.fields;
    for (auto name = m_mapping.headings.cbegin(); name != m_mapping.headings.cend(); ++name)
        m_columnsOfHeading[name.value()].append(name.key());
    const QString portHeading = m_mapping.headings.value(resultsColumnName(ResultsColumn::ActivePort),
                                                         resultsColumnName(ResultsColumn::ActivePort));
    m_isOfActivePorts = std::any_of(m_heading.cbegin(), m_heading.cend(),
                                    [&portHeading](const QString &name) { return name.trimmed() == portHeading; });
    for (int field = 0; field < m_heading.size(); ++field)
        readColumnName(m_heading.at(field).trimmed(), field);
    requireColumns();
    std::sort(m_parameters.begin(), m_parameters.end(),
              [](const Parameter &a, const Parameter &b) { return a.name < b.name; });
    return m_problems.isEmpty();
}

void ResultsFile::readColumnName(const QString &heading, int field)
{
    // A heading can be that of several columns.
    const auto mapped = m_columnsOfHeading.find(heading);
    QStringList names;
    if (mapped != m_columnsOfHeading.end())
        names = mapped->second;
    else if (!m_mapping.headings.contains(heading))
        names.append(heading);
    for (const QString &name : names) {
        const std::optional<ResultsColumn> column = resultsColumnOfName(name);
        if (column && isColumnOf(*column, m_isOfActivePorts)) {
            int &known = m_fields[std::size_t(*column)];
            if (known >= 0)
                report(field, ResultsText::tr("the column \"%1\" occurs twice").arg(excerpt(heading)));
            known = field;
        } else if (!addParameterColumn(name, field) && !m_mapping.isOfOtherProgram()) {
            report(field, ResultsText::tr("unknown column \"%1\"").arg(excerpt(heading)));
        }
    }
}

/// Adds a column of a parameter. Returns false if the name is not that of one.
bool ResultsFile::addParameterColumn(const QString &name, int field)
{
    const auto &parts = parameterColumns();
    for (int part = 0; part < parts.size(); ++part) {
        const QString &prefix = parts.at(part).prefix;
        const bool isPart = !m_isOfActivePorts || parts.at(part).field == &TestParameter::value;
        const QString parameter = name.mid(prefix.size()).trimmed();
        if (!isPart || !name.startsWith(prefix) || parameter.isEmpty())
            continue;
        const auto [known, isNew] = m_parameterOfName.insert({parameter, m_parameters.size()});
        if (isNew)
            m_parameters.push_back({parameter, QVector<int>(parts.size(), -1)});
        int &knownField = m_parameters[known->second].fields[part];
        if (knownField >= 0)
            report(field, ResultsText::tr("the column \"%1\" occurs twice").arg(excerpt(name)));
        if (!firstLostCharacter(parameter, true).isEmpty())
            report(field,
                   ResultsText::tr("\"%1\" contains a character that a file cannot hold").arg(excerpt(parameter)));
        knownField = field;
        return true;
    }
    return false;
}

void ResultsFile::requireColumns()
{
    const ResultsColumn element = m_isOfActivePorts ? ResultsColumn::ActivePort : ResultsColumn::CableId;
    for (const ResultsColumn column : {element, ResultsColumn::TestedAt, ResultsColumn::Verdict}) {
        const QString name = resultsColumnName(column);
        if (fieldOf(column) < 0)
            report(int(m_heading.size()),
                   ResultsText::tr("the column \"%1\" is missing").arg(excerpt(m_mapping.headings.value(name, name))));
    }
}

} // namespace cabledoc
