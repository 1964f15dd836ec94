#pragma once

#include "elementindex.h"
#include "treebuilder.h"

#include <array>
#include <optional>
#include <vector>

namespace cabledoc {

/// What lists of cables are asked for.
enum class CableColumn {
    Type,
    Use,
    BundleName,
    BundleGroupNum,
    To,
    From,
    Path,
    Status, ///< of the test, as testStatus() returns it
    Count,
};

/// The cables of a job in document order. It answers what lists of cables are asked for, and which cables name a tag,
/// without reading the tree. A column is read from the tree when it is first needed, unless it was noted when the file
/// was read.
class CableTable
{
public:
    /// Makes the table of the given cables, which must be in document order. The index must have them too.
    CableTable(const QVector<QDomElement> &cables, const ElementIndex &index);

    /// Returns what buildTree() has to note for the table.
    static ListNotes wantedNotes();
    /// Takes the columns that were noted, if they are those of all cables.
    void take(ListNotes *notes);

    /// Returns whether the table has the values of the attribute of cables with that name.
    static bool dependsOn(const QString &attribute);

    /// Returns the tags in document order.
    const QStringList &tags() const { return listOf(&Row::tag, &m_tags); }
    /// Returns the ids in document order.
    const QStringList &ids() const { return listOf(&Row::id, &m_ids); }
    /// Returns the tags of the cables for whose value in the column the condition holds. The value is null if the cable
    /// does not have the attribute.
    template <typename Condition> QStringList tagsWhere(CableColumn column, Condition condition);
    /// Returns the tags of the cables that end at one of the given places.
    QStringList tagsEndingAt(const QStringList &ends);
    /// Returns all cables that name the tag as an end or as a place on their path. There may be others among them that
    /// named it earlier.
    QVector<QDomElement> cablesNaming(const QString &tag);

    // Changes of the tree

    void append(const QDomElement &cable);
    /// Must be called before the cable is removed.
    void remove(const QDomElement &cable);
    /// Must be called after an attribute of the cable has been changed.
    void update(const QDomElement &cable, const QString &attribute);
    /// Must be called after the test results of the cable have been changed.
    void updateStatus(const QDomElement &cable);
    /// Releases the elements, whose tree is about to be destroyed. Tags, ids and types stay.
    void forgetElements();

    /// Returns whether both tables give the same answers.
    bool hasAnswersOf(CableTable &other);

private:
    struct Row
    {
        QDomElement cable; ///< null if the cable was removed
        QString tag;
        QString id;
        bool isRemoved = false;
    };
    using Column = std::vector<QString>;

    /// Finds rows by the hashes of the tags that they name. Rows that no longer name a tag stay.
    struct Naming
    {
        struct Entry
        {
            std::size_t hash;
            std::size_t row;
            int next; ///< the next entry in the same chain, or -1
        };
        std::vector<int> firstOfChain;
        std::vector<Entry> entries;
        std::size_t firstEntries; ///< the number of entries when they were made

        void insert(std::size_t hash, std::size_t row);
    };

    const QStringList &listOf(QString Row::*field, std::optional<QStringList> *list) const;
    Column &column(CableColumn column);
    std::optional<std::size_t> rowOf(const QDomElement &cable);
    template <typename Use> void forEachNamedTag(std::size_t row, Use use);
    std::vector<std::size_t> rowsNaming(const QString &tag);
    void enterNamesOf(std::size_t row);
    void updateNamesOf(std::size_t row);
    Naming &naming();
    void removeGaps();
    void forgetLists();

    std::vector<Row> m_rows;
    std::size_t m_removedRows = 0;
    std::array<std::optional<Column>, std::size_t(CableColumn::Count)> m_columns;
    std::optional<TextMap<std::size_t>> m_rowOfTag; ///< of the first cable with a tag; made when it is first needed
    std::optional<Naming> m_naming;                 ///< made when it is first needed
    mutable std::optional<QStringList> m_tags;
    mutable std::optional<QStringList> m_ids;
};

template <typename Condition> QStringList CableTable::tagsWhere(CableColumn name, Condition condition)
{
    const Column &values = column(name);
    QStringList tags;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (!m_rows[row].isRemoved && condition(values[row]))
            tags.append(m_rows[row].tag);
    }
    return tags;
}

} // namespace cabledoc
