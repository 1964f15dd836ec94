#pragma once

#include "elementnames.h"
#include "tablecolumns.h"

#include <array>

namespace cabledoc {

/// Reads the texts of the elements of a kind.
class TableReader
{
public:
    /// Which names of other elements are shown.
    enum class Names {
        All,    ///< also those that an earlier element has
        Unique, ///< those that lead to the elements, so that they can be read again
    };

    TableReader(const ElementNames &names, TableKind kind, Names shownNames);

    TableKind kind() const { return m_kind; }
    /// Returns the text of an element in a column, or an empty text for a position of -1.
    QString text(const TableColumn &column, TableUnit unit, int position) const;
    /// Returns the length of a pixel of the plan or sheet in a unit. Returns 0 if it has no scale.
    double pixelIn(TableUnit unit) const;

private:
    QString endText(const TableColumn &column, int position) const;
    QString pathText(int position) const;
    QString runsText(int cable, bool isConnected) const;
    void findRuns() const;

    const ElementNames &m_names;
    TableKind m_kind;
    Names m_shownNames;
    double m_feetInAPixel;
    /// The vertical runs of each cable: the connected ones, and the disconnected ones.
    mutable std::array<QVector<QStringList>, 2> m_runsOfCables;
};

/// Returns why a table cannot have a unit: it has positions, and its plan or sheets have no scale. Returns an empty
/// text if it can.
QString missingScale(const JobSnapshot &job, TableKind kind, TableUnit unit);

} // namespace cabledoc
