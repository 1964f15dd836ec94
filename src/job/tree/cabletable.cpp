#include "cabletable.h"

#include "jobschema.h"
#include "jobwords.h"

#include <algorithm>
#include <set>

namespace cabledoc {

namespace {

/// The attributes of the columns before the status, which is an attribute of the test results.
const QStringList &columnAttributes()
{
    static const QStringList names{words::Type, words::Use,  words::BundleName, words::BundleGroupNum,
                                   words::To,   words::From, words::Path};
    return names;
}

/// Returns the attribute, or a null text if the element does not have it.
QString valueOf(const QDomElement &element, const QString &attribute)
{
    const QString value = element.attribute(attribute);
    return value.isNull() && element.hasAttribute(attribute) ? QLatin1String("") : value;
}

QString valueIn(const QDomElement &cable, CableColumn column)
{
    return column == CableColumn::Status ? testStatus(cable) : valueOf(cable, columnAttributes().at(int(column)));
}

} // namespace

CableTable::CableTable(const QVector<QDomElement> &cables, const ElementIndex &index)
{
    // There is room for further cables, so that the first one does not move all rows.
    m_rows.reserve(std::size_t(cables.size()) + std::size_t(cables.size()) / 8 + 16);
    for (const QDomElement &cable : cables) {
        const QString tag = cable.tagName();
        m_rows.push_back({cable, tag, index.isRepeated(tag) ? cable.attribute(words::Id) : index.id(tag)});
    }
}

ListNotes CableTable::wantedNotes()
{
    ListNotes notes;
    notes.listName = words::CableList;
    notes.attributes = columnAttributes();
    notes.childName = words::TestResults;
    notes.childAttribute = words::Status;
    return notes;
}

void CableTable::take(ListNotes *notes)
{
    if (notes->values.empty() || notes->values.front().size() != m_rows.size())
        return;
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        m_columns[column] = std::move(notes->values[column]);
    const QString untested = testResultsAttributes().defaultText(words::Status);
    for (QString &status : *m_columns[std::size_t(CableColumn::Status)]) {
        if (status.isNull())
            status = untested;
    }
    naming();
}

bool CableTable::dependsOn(const QString &attribute)
{
    return attribute == words::Id || columnAttributes().contains(attribute);
}

const QStringList &CableTable::listOf(QString Row::*field, std::optional<QStringList> *list) const
{
    if (!*list) {
        list->emplace();
        for (const Row &row : m_rows) {
            if (!row.isRemoved)
                (*list)->append(row.*field);
        }
    }
    return **list;
}

QStringList CableTable::tagsEndingAt(const QStringList &ends)
{
    const Column &to = column(CableColumn::To);
    const Column &from = column(CableColumn::From);
    std::set<std::size_t> rows;
    for (const QString &end : ends) {
        const auto insert = [&](std::size_t row) {
            if (to[row] == end || from[row] == end)
                rows.insert(row);
        };
        if (!end.isEmpty()) {
            for (const std::size_t row : rowsNaming(end))
                insert(row);
            continue;
        }
        // A cable without an end does not name a tag.
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (!m_rows[row].cable.isNull())
                insert(row);
        }
    }
    QStringList tags;
    for (const std::size_t row : rows)
        tags.append(m_rows[row].tag);
    return tags;
}

QVector<QDomElement> CableTable::cablesNaming(const QString &tag)
{
    QVector<QDomElement> cables;
    for (const std::size_t row : rowsNaming(tag))
        cables.append(m_rows[row].cable);
    return cables;
}

// Changes

void CableTable::append(const QDomElement &cable)
{
    const std::size_t row = m_rows.size();
    m_rows.push_back({cable, cable.tagName(), cable.attribute(words::Id)});
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (m_columns[column])
            m_columns[column]->push_back(valueIn(cable, CableColumn(column)));
    }
    if (m_rowOfTag)
        m_rowOfTag->try_emplace(m_rows.back().tag, row);
    updateNamesOf(row);
    forgetLists();
}

void CableTable::remove(const QDomElement &cable)
{
    const auto row = rowOf(cable);
    if (!row)
        return;
    Row &removed = m_rows[*row];
    if (m_rowOfTag) {
        const auto ofTag = m_rowOfTag->find(removed.tag);
        if (ofTag != m_rowOfTag->end() && ofTag->second == *row)
            m_rowOfTag->erase(ofTag);
    }
    removed.isRemoved = true;
    removed.cable = QDomElement();
    ++m_removedRows;
    if (m_removedRows > m_rows.size() / 2)
        removeGaps();
    forgetLists();
}

void CableTable::update(const QDomElement &cable, const QString &attribute)
{
    const int number = int(columnAttributes().indexOf(attribute));
    const bool isId = attribute == words::Id;
    if (!isId && (number < 0 || !m_columns[std::size_t(number)]))
        return;
    const auto row = rowOf(cable);
    if (!row)
        return;
    if (isId) {
        m_rows[*row].id = cable.attribute(attribute);
        m_ids.reset();
        return;
    }
    (*m_columns[std::size_t(number)])[*row] = valueOf(cable, attribute);
    if (namingAttributes().contains(attribute))
        updateNamesOf(*row);
}

void CableTable::updateStatus(const QDomElement &cable)
{
    std::optional<Column> &statuses = m_columns[std::size_t(CableColumn::Status)];
    const auto row = statuses ? rowOf(cable) : std::nullopt;
    if (row)
        (*statuses)[*row] = testStatus(cable);
}

void CableTable::forgetElements()
{
    column(CableColumn::Type);
    for (std::size_t number = 0; number < m_columns.size(); ++number) {
        if (CableColumn(number) != CableColumn::Type)
            m_columns[number].emplace(m_rows.size());
    }
    for (Row &row : m_rows)
        row.cable = QDomElement();
    m_naming.reset();
}

bool CableTable::hasAnswersOf(CableTable &other)
{
    const auto haveEqualColumns = [&](CableColumn name) {
        QStringList values;
        QStringList otherValues;
        const auto collect = [](QStringList *all) {
            return [all](const QString &value) {
                all->append(value.isNull() ? QStringLiteral("missing") : QLatin1Char('=') + value);
                return false;
            };
        };
        tagsWhere(name, collect(&values));
        other.tagsWhere(name, collect(&otherValues));
        return values == otherValues;
    };
    for (int number = 0; number < int(CableColumn::Count); ++number) {
        if (!haveEqualColumns(CableColumn(number)))
            return false;
    }
    if (tags() != other.tags() || ids() != other.ids())
        return false;
    // The other table may have other gaps between its rows.
    std::vector<std::size_t> ownRows;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (!m_rows[row].isRemoved)
            ownRows.push_back(row);
    }
    TextMap<std::set<std::size_t>> rowsOfTag;
    std::size_t number = 0;
    for (std::size_t row = 0; row < other.m_rows.size(); ++row) {
        if (other.m_rows[row].isRemoved)
            continue;
        other.forEachNamedTag(row, [&](const QString &tag) { rowsOfTag[tag].insert(ownRows[number]); });
        ++number;
    }
    return std::all_of(rowsOfTag.begin(), rowsOfTag.end(), [this](const auto &entry) {
        const std::vector<std::size_t> rows = rowsNaming(entry.first);
        return std::includes(rows.begin(), rows.end(), entry.second.begin(), entry.second.end());
    });
}

// Parts that are made when they are needed

CableTable::Column &CableTable::column(CableColumn name)
{
    std::optional<Column> &values = m_columns[std::size_t(name)];
    if (!values) {
        values.emplace(m_rows.size());
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (!m_rows[row].isRemoved)
                (*values)[row] = valueIn(m_rows[row].cable, name);
        }
    }
    return *values;
}

/// Returns the row of a cable, or nothing if the table does not have it.
std::optional<std::size_t> CableTable::rowOf(const QDomElement &cable)
{
    // This is the new cable whose parts are just added.
    if (!m_rows.empty() && m_rows.back().cable == cable)
        return m_rows.size() - 1;
    if (!m_rowOfTag) {
        m_rowOfTag.emplace();
        m_rowOfTag->reserve(m_rows.size());
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (!m_rows[row].isRemoved)
                m_rowOfTag->try_emplace(m_rows[row].tag, row);
        }
    }
    const auto ofTag = m_rowOfTag->find(cable.tagName());
    if (ofTag != m_rowOfTag->end() && m_rows[ofTag->second].cable == cable)
        return ofTag->second;
    // Several cables share the tag.
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [&cable](const Row &row) { return row.cable == cable; });
    return found == m_rows.end() ? std::nullopt : std::optional(std::size_t(found - m_rows.begin()));
}

/// Calls a function with each tag that a cable names. Reads the columns of all cables if they are not known.
template <typename Use> void CableTable::forEachNamedTag(std::size_t row, Use use)
{
    for (const Reference &reference : cableKind().references) {
        for (const QString &attribute : reference.attributes) {
            const QString &text = column(CableColumn(columnAttributes().indexOf(attribute)))[row];
            // Nearly all cables have two ends and no path, so this needs no list of tags.
            if (text.isEmpty())
                continue;
            if (reference.whenGone == Reference::RemoveElement) {
                use(text);
                continue;
            }
            for (const QString &tag : reference.tagsIn(text))
                use(tag);
        }
    }
}

/// Returns the rows of all cables that name the tag, in document order. There may be rows among them that named it
/// earlier. It would take long to look for a tag in a long path, so the caller does that where it has to.
std::vector<std::size_t> CableTable::rowsNaming(const QString &tag)
{
    const Naming &names = naming();
    const std::size_t hash = TextHash()(tag);
    std::vector<std::size_t> rows;
    for (int entry = names.firstOfChain[hash & (names.firstOfChain.size() - 1)]; entry >= 0;
         entry = names.entries[std::size_t(entry)].next) {
        const Naming::Entry &named = names.entries[std::size_t(entry)];
        if (named.hash == hash && !m_rows[named.row].isRemoved)
            rows.push_back(named.row);
    }
    // A cable can name a tag several times.
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void CableTable::Naming::insert(std::size_t hash, std::size_t row)
{
    int &first = firstOfChain[hash & (firstOfChain.size() - 1)];
    entries.push_back({hash, row, first});
    first = int(entries.size()) - 1;
}

void CableTable::enterNamesOf(std::size_t row)
{
    forEachNamedTag(row, [this, row](const QString &tag) { m_naming->insert(TextHash()(tag), row); });
}

/// Must be called after the tags that a cable names have been changed.
void CableTable::updateNamesOf(std::size_t row)
{
    if (!m_naming)
        return;
    enterNamesOf(row);
    // Most entries may be those of earlier changes.
    if (m_naming->entries.size() > 2 * m_naming->firstEntries + m_naming->firstOfChain.size())
        m_naming.reset();
}

CableTable::Naming &CableTable::naming()
{
    if (m_naming)
        return *m_naming;
    std::size_t chains = 64;
    while (chains < 2 * m_rows.size())
        chains *= 2;
    m_naming = Naming{std::vector<int>(chains, -1), {}, 0};
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (!m_rows[row].isRemoved)
            enterNamesOf(row);
    }
    m_naming->firstEntries = m_naming->entries.size();
    return *m_naming;
}

/// Removes the rows of cables that were removed.
void CableTable::removeGaps()
{
    std::size_t kept = 0;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (m_rows[row].isRemoved)
            continue;
        if (kept != row) {
            m_rows[kept] = std::move(m_rows[row]);
            for (std::optional<Column> &values : m_columns) {
                if (values)
                    (*values)[kept] = std::move((*values)[row]);
            }
        }
        ++kept;
    }
    m_rows.erase(m_rows.begin() + std::ptrdiff_t(kept), m_rows.end());
    for (std::optional<Column> &values : m_columns) {
        if (values)
            values->resize(kept);
    }
    m_removedRows = 0;
    m_rowOfTag.reset();
    m_naming.reset();
}

void CableTable::forgetLists()
{
    m_tags.reset();
    m_ids.reset();
}

} // namespace cabledoc
