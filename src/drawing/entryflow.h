#pragma once

#include "drawingfonts.h"
#include "plancontent.h"

namespace cabledoc {

// Millimetres
constexpr double columnWidth = 72.0; ///< of the column beside a plan
constexpr double padding = 3.0;      ///< between what stands on a sheet and the lines around it

/// Writes entries one below the other into columns, as long as there is room. Goes on with the next area after that.
class EntryFlow
{
public:
    EntryFlow(const QVector<ColumnEntry> &entries, const TextMeasure &measure)
        : m_entries(entries)
        , m_measure(measure)
    {
    }

    void prepend(const QVector<ColumnEntry> &entries) { m_entries = entries + m_entries; }
    /// Returns the height of a column with all entries.
    double height(double width) const;
    bool isAtEnd() const { return m_next >= m_entries.size(); }
    /// Fills an area with columns of entries.
    void fill(Scene *sheet, const QRectF &area);

private:
    void fillColumn(Scene *sheet, const QRectF &area);
    int linesThatFit(double height, bool isColumnEmpty) const;
    QStringList linesOf(const ColumnEntry &entry, double width) const;
    void write(Scene *sheet, const ColumnEntry &entry, const QStringList &lines, const QPointF &corner) const;

    QVector<ColumnEntry> m_entries;
    const TextMeasure &m_measure;
    int m_next = 0;
    QStringList m_lines; ///< of the next entry, if it was begun
    int m_nextLine = 0;
};

} // namespace cabledoc
