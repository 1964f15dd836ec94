#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "table.h"

#include <cabledoc/documentvalues.h>
#include <cabledoc/elementtable.h>
#include <cabledoc/jobsnapshot.h>

using cabledoc::ElementTable;
using cabledoc::JobSnapshot;
using cabledoc::TableKind;

namespace {

/// Collects the places in which a text occurs.
class Search
{
public:
    explicit Search(const QString &text)
        : m_text(text)
    {
        m_table.columns = {{"kind", Program::tr("Kind")},
                           {"name", Program::tr("Name")},
                           {"column", Program::tr("Column")},
                           {"text", Program::tr("Text")},
                           {"tag", QString()}};
    }

    void searchIn(const JobSnapshot &document, TableKind kind)
    {
        const ElementTable table(document, kind);
        QVector<int> columns;
        const int tag = table.columnOf(QStringLiteral("tag"));
        for (int column = 0; column < table.columns().size(); ++column) {
            if (table.columns().at(column).isSearchable)
                columns.append(column);
        }
        for (int row = 0; row < table.rowCount(); ++row) {
            for (const int column : std::as_const(columns)) {
                const QString cell = table.text(row, column);
                if (contains(cell))
                    m_table.rows.append({cabledoc::tableName(kind), table.name(row), table.columns().at(column).name,
                                         cell, tag < 0 ? QString() : table.text(row, tag)});
            }
        }
    }

    void searchIn(const QVector<cabledoc::DocumentValue> &values)
    {
        for (const cabledoc::DocumentValue &value : values) {
            if (contains(value.text))
                m_table.rows.append({QStringLiteral("value"), value.name, QString(), value.text, QString()});
        }
    }

    const Table &found() const { return m_table; }

private:
    bool contains(const QString &text) const { return text.contains(m_text, Qt::CaseInsensitive); }

    QString m_text;
    Table m_table;
};

} // namespace

ExitCode runFind(const CommandLine &line)
{
    JobSnapshot document;
    if (const ExitCode error = readDocument(line, &document))
        return error;
    Search search(line.argument(1));
    for (const TableKind kind : cabledoc::tableKinds())
        search.searchIn(document, kind);
    search.searchIn(isTemplate(line.argument(0)) ? cabledoc::valuesOfTemplate(document)
                                                 : cabledoc::valuesOfJob(document));

    const Table &found = search.found();
    if (!line.isSet("json"))
        return printText(line.output(), found.rows.isEmpty() ? QString() : textOf(found));
    return printJson(line.output(), "cabledoc-find-1",
                     {{{QStringLiteral("file"), line.argument(0)}, {QStringLiteral("text"), line.argument(1)}},
                      QStringLiteral("found"),
                      int(found.rows.size()),
                      [&found](int row) { return objectOf(found, row); }});
}
