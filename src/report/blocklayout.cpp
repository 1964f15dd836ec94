#include "blocklayout.h"

#include "columnwidths.h"
#include "sheetpen.h"
#include "wrappedtext.h"

#include <algorithm>

namespace cabledoc {

namespace {

// Millimetres
constexpr double bodySize = 2.9;
constexpr double tableSize = 2.7;
constexpr double smallestTable = 2.4;
constexpr double lineHeight = 1.4; // in parts of the size
constexpr double cellPadding = 1.6;
constexpr double rowPadding = 0.7;
constexpr double keptBelowHeading = 18.0;

const LineStyle headLine{QColor(0x40, 0x40, 0x40), 0.3, LineStyle::Solid};
const QColor linkColor(0x1f, 0x4e, 0x8c);

struct HeadingStyle
{
    double size;
    double above;
    double below;
    bool hasRule;
};

HeadingStyle styleOf(HeadingBlock::Level level)
{
    switch (level) {
    case HeadingBlock::Title:
        return {8.0, 0.0, 5.0, false};
    case HeadingBlock::Chapter:
        return {5.0, 0.0, 3.0, false};
    case HeadingBlock::Subject:
        return {3.9, 4.0, 2.0, true};
    default:
        return {3.2, 2.0, 1.2, false};
    }
}

/// Makes the pieces of blocks.
class BlockLayout
{
public:
    explicit BlockLayout(const BlockSpace &space)
        : m_space(space)
        , m_width(space.size.width())
        , m_measure(space.measure)
    {
    }

    void layOut(const ReportBlock &block, const PieceSink &sink) const
    {
        std::visit([this, &sink](const auto &actual) { pieces(actual, sink); }, block);
    }

private:
    void pieces(const HeadingBlock &heading, const PieceSink &sink) const
    {
        const HeadingStyle style = styleOf(heading.level);
        Scene scene;
        SheetPen pen(&scene, m_measure);
        if (style.hasRule)
            pen.line({0.0, style.above - 1.5}, {m_width, style.above - 1.5}, headLine);
        QStringList verdict;
        if (!heading.verdict.isEmpty())
            verdict = wrapped(m_measure, heading.verdict, style.size, m_width / 2.0, true);
        double verdictWidth = 0.0;
        for (const QString &line : verdict)
            verdictWidth = std::max(verdictWidth, m_measure.width(line, style.size, true) + gap);
        const QStringList lines = wrapped(m_measure, heading.text, style.size, m_width - verdictWidth, true);
        const auto baseline = [&style](int line) { return style.above + style.size * ((line + 1) * lineHeight - 0.3); };
        for (int i = 0; i < lines.size(); ++i)
            pen.text({0.0, baseline(i)}, lines.at(i), style.size, true);
        for (int i = 0; i < verdict.size(); ++i)
            pen.text({m_width - m_measure.width(verdict.at(i), style.size, true), baseline(i)}, verdict.at(i),
                     style.size, true, verdictColor(heading.verdict));
        const double textHeight = double(std::max(lines.size(), verdict.size())) * style.size * lineHeight;
        sink({style.above + textHeight + style.below, scene.items, keptBelowHeading});
    }

    void pieces(const ParagraphBlock &paragraph, const PieceSink &sink) const
    {
        for (const QString &line : wrapped(m_measure, paragraph.text, bodySize, m_width)) {
            Scene scene;
            SheetPen(&scene, m_measure).text({0.0, bodySize}, line, bodySize);
            sink({bodySize * lineHeight, scene.items});
        }
        sink({bodySize * 0.5, {}});
    }

    void pieces(const FactsBlock &block, const PieceSink &sink) const
    {
        Scene scene;
        const double pictureWidth = block.picture ? block.picture->size.width() + 2.0 * gap : 0.0;
        const double columnWidth = (m_width - pictureWidth) / block.columns;
        const int factsInColumn = int((block.facts.size() + block.columns - 1) / block.columns);
        double height = block.picture ? block.picture->size.height() : 0.0;
        for (int column = 0; column < block.columns; ++column) {
            const auto facts = block.facts.mid(column * factsInColumn, factsInColumn);
            height = std::max(height, addFacts(facts, column * columnWidth, columnWidth - gap, &scene));
        }
        if (block.picture) {
            for (SceneItem item : block.picture->items) {
                moveBy(&item, {m_width - block.picture->size.width(), 0.0});
                scene.items.append(item);
            }
        }
        sink({height + gap, scene.items});
    }

    /// Writes facts one below the other. Returns their height.
    double addFacts(const QVector<QPair<QString, QString>> &facts, double left, double width, Scene *scene) const
    {
        SheetPen pen(scene, m_measure);
        double nameWidth = 0.0;
        for (const auto &fact : facts)
            nameWidth = std::max(nameWidth, m_measure.width(fact.first, smallSize) + gap);
        nameWidth = std::min(nameWidth, width / 2.0);
        double y = 0.0;
        for (const auto &[name, value] : facts) {
            pen.text({left, y + bodySize}, m_measure.elided(name, smallSize, nameWidth), smallSize, false, dimColor);
            for (const QString &line : wrapped(m_measure, value, bodySize, width - nameWidth)) {
                pen.text({left + nameWidth, y + bodySize}, line, bodySize);
                y += bodySize * lineHeight;
            }
        }
        return y;
    }

    void pieces(const TableBlock &table, const PieceSink &sink) const
    {
        const TableMeasures measures =
            measuresOf(table, tableSize, smallestTable, 2.0 * cellPadding, m_width, m_measure);
        ReportRow headings;
        for (const ReportColumn &column : table.columns)
            headings.append({column.heading});
        const auto head = std::make_shared<const Piece>(rowPiece(table.columns, headings, measures, true));
        Piece first = *head;
        first.keptHeight = measures.size * lineHeight + 2.0 * rowPadding;
        sink(first);
        for (int row = 0; row < table.rowCount; ++row) {
            Piece piece = rowPiece(table.columns, table.row(row), measures, false);
            piece.repeated = head;
            sink(piece);
        }
        sink({gap, {}});
    }

    Piece rowPiece(const QVector<ReportColumn> &columns, const ReportRow &cells, const TableMeasures &measures,
                   bool isHead) const
    {
        Scene scene;
        double left = 0.0;
        double height = 0.0;
        for (int i = 0; i < columns.size(); ++i) {
            const CellPlace place{left, measures.widths.at(i), measures.size};
            height = std::max(height, addCell(columns.at(i), cells.value(i), place, isHead, &scene));
            left += place.width;
        }
        SheetPen(&scene, m_measure).line({0.0, height}, {left, height}, isHead ? headLine : rowLine);
        if (!isHead)
            addLinks(cells, measures.widths, height, &scene);
        return {height, scene.items};
    }

    /// Adds the links of a row. One covers all fields from the first one to the last one with the same target.
    void addLinks(const ReportRow &cells, const QVector<double> &widths, double height, Scene *scene) const
    {
        QVector<SceneLink> links;
        double left = 0.0;
        for (int i = 0; i < cells.size(); ++i) {
            const int page = m_space.numbers.pageOf(cells.at(i).target);
            const bool isSame = !links.isEmpty() && links.constLast().page == page;
            if (page >= 0 && isSame)
                links.last().area.setRight(left + widths.at(i));
            else if (page >= 0)
                links.append({{left, 0.0, widths.at(i), height}, page});
            left += widths.at(i);
        }
        for (const SceneLink &link : links)
            addToSheet(scene, link);
    }

    struct CellPlace
    {
        double left;
        double width;
        double size; ///< of the letters
    };

    /// Writes a field. Returns its height.
    double addCell(const ReportColumn &column, const ReportCell &cell, const CellPlace &place, bool isHead,
                   Scene *scene) const
    {
        SheetPen pen(scene, m_measure);
        const bool isRight = column.kind == ReportColumn::Number || column.kind == ReportColumn::Page;
        const bool isVerdict = column.kind == ReportColumn::Verdict && !isHead;
        const bool isBold = isHead || isVerdict;
        const int page = m_space.numbers.pageOf(cell.target);
        const QString text = column.kind == ReportColumn::Page && !isHead
                                 ? (page < 0 ? QString() : QString::number(page + 1))
                                 : cell.text;
        const QColor color = isVerdict                                 ? verdictColor(text)
                             : !isHead && page >= 0 && !text.isEmpty() ? linkColor
                                                                       : QColor(Qt::black);
        double y = rowPadding;
        const double left = place.left + cellPadding;
        const double room = place.width - 2.0 * cellPadding;
        for (const QString &line : wrapped(m_measure, text, place.size, room + 0.01, isBold)) {
            const double x = isRight ? left + room - m_measure.width(line, place.size, isBold) : left;
            y += place.size * lineHeight;
            if (!line.isEmpty())
                pen.text({x, y - place.size * 0.35}, line, place.size, isBold, color);
        }
        return y + rowPadding;
    }

    void pieces(const FigureBlock &figure, const PieceSink &sink) const
    {
        const QSizeF &size = figure.scene.size;
        const double factor = std::min({1.0, m_width / size.width(), (m_space.size.height() - gap) / size.height()});
        QVector<SceneItem> items = figure.scene.items;
        for (SceneItem &item : items)
            scaleBy(&item, factor);
        sink({size.height() * factor + gap, items});
    }

    const BlockSpace &m_space;
    const double m_width;
    const TextMeasure &m_measure;
};

} // namespace

void layOut(const ReportBlock &block, const BlockSpace &space, const PieceSink &sink)
{
    BlockLayout(space).layOut(block, sink);
}

} // namespace cabledoc
