#include "entryflow.h"

#include "sheetpen.h"
#include "wrappedtext.h"

#include <algorithm>

namespace cabledoc {

namespace {

// Millimetres
constexpr double entrySize = 2.4;
constexpr double entryHeight = 4.6;
constexpr double headingSize = 3.0;
constexpr double sampleWidth = 9.0; // of symbols, lines and numbers before the text of an entry

double spaceBefore(const ColumnEntry &entry)
{
    return entry.isHeading ? padding : 0.0;
}

double indent(const ColumnEntry &entry)
{
    return entry.sample.isEmpty() && entry.mark.isEmpty() ? 0.0 : sampleWidth;
}

} // namespace

double EntryFlow::height(double width) const
{
    double height = 0.0;
    for (const ColumnEntry &entry : m_entries)
        height += double(linesOf(entry, width).size()) * entryHeight + spaceBefore(entry);
    return height;
}

void EntryFlow::fill(Scene *sheet, const QRectF &area)
{
    const int columns = std::max(1, int(area.width() / columnWidth));
    const double width = area.width() / columns;
    for (int i = 0; i < columns; ++i)
        fillColumn(sheet, QRectF(area.left() + i * width, area.top(), width, area.height()));
}

void EntryFlow::fillColumn(Scene *sheet, const QRectF &area)
{
    double y = area.top();
    while (!isAtEnd()) {
        const ColumnEntry &entry = m_entries.at(m_next);
        if (m_lines.isEmpty())
            m_lines = linesOf(entry, area.width());
        const double space = spaceBefore(entry);
        const int fitting = linesThatFit(area.bottom() - y - space, y == area.top());
        if (fitting == 0)
            return;
        y += space;
        write(sheet, entry, m_lines.mid(m_nextLine, fitting), QPointF(area.left(), y));
        y += fitting * entryHeight;
        m_nextLine += fitting;
        if (m_nextLine < m_lines.size())
            return;
        ++m_next;
        m_nextLine = 0;
        m_lines.clear();
    }
}

/// Returns how many of the lines of the next entry are written into a column with the given height left. A short
/// entry is not divided unless the column has nothing else.
int EntryFlow::linesThatFit(double height, bool isColumnEmpty) const
{
    constexpr int shortEntry = 6;
    const int left = int(m_lines.size()) - m_nextLine;
    const int room = std::max(int(height / entryHeight), isColumnEmpty ? 1 : 0);
    if (left <= room)
        return left;
    return left > shortEntry || isColumnEmpty ? room : 0;
}

QStringList EntryFlow::linesOf(const ColumnEntry &entry, double width) const
{
    if (entry.isHeading)
        return {entry.text};
    return wrapped(m_measure, entry.text, entrySize, width - indent(entry) - padding);
}

void EntryFlow::write(Scene *sheet, const ColumnEntry &entry, const QStringList &lines, const QPointF &corner) const
{
    SheetPen pen(sheet, m_measure);
    const double middle = corner.y() + entryHeight / 2;
    const bool isBegin = m_nextLine == 0;
    for (const SceneShape &shape : isBegin ? entry.sample : QVector<SceneShape>()) {
        SceneItem item{Layer::Sheet, ElementKind::None, {}, {}, shape};
        moveBy(&item, {corner.x() + (sampleWidth - 1.5) / 2, middle});
        pen.add(item.shape);
    }
    if (isBegin && !entry.mark.isEmpty())
        pen.text({corner.x(), middle + entrySize * halfOfCapital}, entry.mark, entrySize, true);
    const double size = entry.isHeading ? headingSize : entrySize;
    QPointF position(corner.x() + indent(entry), middle + size * halfOfCapital);
    for (const QString &line : lines) {
        pen.text(position, line, size, entry.isHeading);
        position.ry() += entryHeight;
    }
}

} // namespace cabledoc
