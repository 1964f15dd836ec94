#pragma once

#include "command.h"

#include <cabledoc/elementtable.h>

#include <memory>

/// The list of the elements of one kind that a command prints.
class ElementList
{
public:
    /// Reads the file of the command line. The list has the columns of --columns, the rows that --where leaves, and the
    /// order of --sort. Without it, the order is the given one, such as "id", or that of the file. Returns Done, or
    /// prints a message and returns how the program ends.
    ExitCode read(const CommandLine &line, cabledoc::TableKind kind, const QString &usualOrder = {});
    /// Does the same with a document that has been read.
    ExitCode choose(const CommandLine &line, const cabledoc::JobSnapshot &document, cabledoc::TableKind kind,
                    const QString &usualOrder = {});
    /// Keeps only the rows that have a text in a column.
    void keepOnly(const QString &column, const QString &text);
    const cabledoc::ElementTable &table() const { return *m_table; }
    /// Returns the columns of the table that are in the list.
    const QVector<int> &columns() const { return m_columns; }
    /// Returns the rows of the table that are in the list, in their order.
    const QVector<int> &rows() const { return m_rows; }
    /// Prints the list as text, as CSV with --csv, or as JSON with --json in a form.
    ExitCode print(const CommandLine &line, const char *form) const;

private:
    ExitCode selectColumns(const CommandLine &line);
    ExitCode selectRows(const CommandLine &line);
    ExitCode sortRows(const CommandLine &line, const QString &order);
    QString text() const;

    cabledoc::TableKind m_kind = cabledoc::TableKind::Count;
    std::unique_ptr<cabledoc::ElementTable> m_table;
    QVector<int> m_columns;
    bool m_hasChosenColumns = false;
    QVector<int> m_rows;
};
