#include "reportpages.h"

#include "columnwidths.h"
#include "reportcontent.h"
#include "sheetpen.h"
#include "wrappedtext.h"

#include <QtGui/QImage>

#include <algorithm>

namespace cabledoc {

namespace {

// Millimetres
constexpr double sideMargin = 15.0;
constexpr double topMargin = 20.0;
constexpr double bottomMargin = 17.0;
constexpr double headBaseline = 13.0;
constexpr double footBaseline = 10.0; // from the bottom
constexpr double bodySize = 2.9;
constexpr double tableSize = 2.7;
constexpr double smallestTable = 2.4;
constexpr double smallSize = 2.4;
constexpr double lineHeight = 1.4; // in parts of the size
constexpr double cellPadding = 1.6;
constexpr double rowPadding = 0.7;
constexpr double gap = 3.0; // between blocks
constexpr double keptBelowHeading = 18.0;

const QColor ruleColor(0xc8, 0xc8, 0xc8);
const LineStyle rowLine{ruleColor, 0.12, LineStyle::Solid};
const LineStyle headLine{QColor(0x40, 0x40, 0x40), 0.3, LineStyle::Solid};
const QColor linkColor(0x1f, 0x4e, 0x8c);

/// Something that is not divided, at the origin.
struct Piece
{
    double height = 0.0;
    QVector<SceneItem> items;
    double keptHeight = 0.0;                    ///< what must fit below it on the same page
    std::shared_ptr<const Piece> repeated = {}; ///< stands above it if it is the first on a page
};

using PieceSink = std::function<void(const Piece &piece)>;

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

void scaleLine(LineStyle *style, double factor)
{
    style->width *= factor;
}

QRectF scaledRectangle(const QRectF &area, double factor)
{
    return {area.topLeft() * factor, area.size() * factor};
}

void scale(SceneLine *line, double factor)
{
    for (QPointF &point : line->points)
        point *= factor;
    scaleLine(&line->style, factor);
}

void scale(SceneArea *area, double factor)
{
    for (QPointF &corner : area->corners)
        corner *= factor;
    scaleLine(&area->outline, factor);
}

void scale(SceneText *text, double factor)
{
    text->position *= factor;
    text->size *= factor;
    text->width *= factor;
}

template <typename Shape> void scale(Shape *shape, double factor)
{
    shape->area = scaledRectangle(shape->area, factor);
}

void scaleItems(QVector<SceneItem> *items, double factor)
{
    for (SceneItem &item : *items)
        std::visit([factor](auto &shape) { scale(&shape, factor); }, item.shape);
}

/// Lays out blocks in a column of the given width. The height is that of a page.
class BlockLayout
{
public:
    BlockLayout(const QSizeF &size, const TextMeasure &measure, const PageNumbers &numbers)
        : m_width(size.width())
        , m_height(size.height())
        , m_measure(measure)
        , m_numbers(numbers)
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
            const int page = m_numbers.pageOf(cells.at(i).target);
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
        const int page = m_numbers.pageOf(cell.target);
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
        const double factor = std::min({1.0, m_width / size.width(), (m_height - gap) / size.height()});
        QVector<SceneItem> items = figure.scene.items;
        scaleItems(&items, factor);
        sink({size.height() * factor + gap, items});
    }

    const double m_width;
    const double m_height;
    const TextMeasure &m_measure;
    const PageNumbers &m_numbers;
};

/// Returns where the part of a piece ends that begins at the given height, so that no text is divided.
double endOfPart(const Piece &piece, double top, double furthestEnd)
{
    double end = furthestEnd;
    for (const SceneItem &item : piece.items) {
        const QRectF bounds = boundsOf(item);
        if (std::holds_alternative<SceneText>(item.shape) && bounds.top() > top && bounds.bottom() > furthestEnd)
            end = std::min(end, bounds.top());
    }
    return end;
}

/// Returns the part of a piece between two heights. Links are divided, and all else is where it begins.
Piece partOf(const Piece &piece, double top, double end)
{
    Piece part;
    part.height = end - top;
    const bool isLast = end >= piece.height;
    for (SceneItem item : piece.items) {
        const QRectF bounds = boundsOf(item);
        auto *link = std::get_if<SceneLink>(&item.shape);
        const bool isInside = link == nullptr ? bounds.top() >= top && (bounds.top() < end || isLast)
                                              : bounds.bottom() > top && bounds.top() < end;
        if (!isInside)
            continue;
        if (link != nullptr) {
            link->area.setTop(std::max(link->area.top(), top));
            link->area.setBottom(std::min(link->area.bottom(), end));
        }
        moveBy(&item, {0.0, -top});
        part.items.append(item);
    }
    return part;
}

/// Returns the number of rows of all tables in a group.
int rowCountOf(const ReportGroup &group)
{
    int count = 0;
    for (const ReportBlock &block : group.blocks) {
        if (const auto *table = std::get_if<TableBlock>(&block))
            count += table->rowCount;
    }
    return count;
}

} // namespace

struct ReportPages::Data
{
    Data(const PageStyle &pageStyle, const TextMeasure &textMeasure, PageNumbers knownNumbers, Output pageOutput)
        : style(pageStyle)
        , measure(textMeasure)
        , known(std::move(knownNumbers))
        , output(std::move(pageOutput))
        , size(style.paper / style.zoom)
        , layout({size.width() - 2.0 * sideMargin, bottom() - topMargin}, measure, known)
    {
    }

    double bottom() const { return size.height() - bottomMargin; }

    void startPage()
    {
        endPage();
        isOpen = true;
        y = topMargin;
        page = Scene();
        page.size = style.paper;
        page.window = QRectF(QPointF(), style.paper);
    }

    void endPage()
    {
        if (!isOpen)
            return;
        addFurniture();
        scaleItems(&page.items, style.zoom);
        output(page);
        ++found.count;
        isOpen = false;
    }

    /// Adds what stands at the top and at the bottom of a page.
    void addFurniture()
    {
        SheetPen pen(&page, measure);
        const double right = size.width() - sideMargin;
        const auto toTheRight = [&](const QString &text, double baseline) {
            pen.text({right - measure.width(text, smallSize), baseline}, text, smallSize, false, dimColor);
        };
        if (found.count > 0) {
            const double subjectWidth = measure.width(style.subject, smallSize);
            const double half = (right - sideMargin) / 2.0;
            toTheRight(subjectWidth > half ? measure.elided(style.subject, smallSize, half) : style.subject,
                       headBaseline);
            pen.text({sideMargin, headBaseline}, measure.elided(style.contractor, smallSize, half - gap), smallSize,
                     false, dimColor);
            pen.line({sideMargin, headBaseline + 1.5}, {right, headBaseline + 1.5}, rowLine);
        } else {
            addLogo(&pen);
        }
        const double foot = size.height() - footBaseline;
        pen.text({sideMargin, foot}, style.date, smallSize, false, dimColor);
        toTheRight(ReportText::tr("Page %1 of %2").arg(found.count + 1).arg(known.count), foot);
    }

    void addLogo(SheetPen *pen)
    {
        const QSize pixels = QImage::fromData(style.logo).size();
        if (pixels.isEmpty())
            return;
        const QSizeF logo = QSizeF(pixels).scaled(QSizeF(45.0, 18.0), Qt::KeepAspectRatio);
        pen->add(ScenePicture{style.logo, {{size.width() - sideMargin - logo.width(), topMargin}, logo}});
    }

    void place(const Piece &piece)
    {
        if (!isOpen)
            startPage();
        if (y > topMargin && y + piece.height + piece.keptHeight > bottom())
            startPageFor(piece);
        if (piece.items.isEmpty() && y <= topMargin)
            return; // no gap at the top of a page
        if (y + piece.height > bottom())
            putInParts(piece);
        else
            put(piece);
    }

    /// Starts a page with what is repeated above a piece.
    void startPageFor(const Piece &piece)
    {
        startPage();
        if (piece.repeated)
            put(*piece.repeated);
    }

    /// Puts a piece that is higher than a page on several pages.
    void putInParts(const Piece &piece)
    {
        constexpr double leastHeight = 5.0; // of a part, even if the page is full
        for (double top = 0.0; top < piece.height;) {
            if (top > 0.0)
                startPageFor(piece);
            const double room = std::max(leastHeight, bottom() - y);
            const double end = endOfPart(piece, top, std::min(piece.height, top + room));
            put(partOf(piece, top, end));
            top = end;
        }
    }

    void put(const Piece &piece)
    {
        if (!anchor.isEmpty())
            found.ofAnchors.try_emplace(anchor, found.count);
        anchor.clear();
        for (SceneItem item : piece.items) {
            moveBy(&item, {sideMargin, y});
            page.items.append(item);
        }
        y += piece.height;
    }

    const PageStyle style;
    const TextMeasure &measure;
    const PageNumbers known; ///< of the first time
    const Output output;
    const QSizeF size; ///< of a page before the zoom
    const BlockLayout layout;
    PageNumbers found;
    Scene page;
    bool isOpen = false;
    double y = 0.0;
    QString anchor; ///< of a group that has nothing on a page yet
};

ReportPages::ReportPages(const PageStyle &style, const TextMeasure &measure, PageNumbers numbers, Output output)
    : d(std::make_unique<Data>(style, measure, std::move(numbers), std::move(output)))
{
}

ReportPages::~ReportPages() = default;

void ReportPages::add(const ReportGroup &group)
{
    if (group.startsPage && d->y > topMargin)
        d->startPage();
    d->anchor = group.anchor;
    constexpr int rowsOfOnePage = 60;
    if (rowCountOf(group) > rowsOfOnePage) {
        for (const ReportBlock &block : group.blocks)
            d->layout.layOut(block, [this](const Piece &piece) { d->place(piece); });
        return;
    }
    QVector<Piece> pieces;
    double height = 0.0;
    for (const ReportBlock &block : group.blocks) {
        d->layout.layOut(block, [&pieces, &height](const Piece &piece) {
            pieces.append(piece);
            height += piece.height;
        });
    }
    const bool fitsOnPage = topMargin + height <= d->bottom();
    if (d->isOpen && fitsOnPage && d->y + height > d->bottom())
        d->startPage();
    for (const Piece &piece : pieces)
        d->place(piece);
}

PageNumbers ReportPages::finish()
{
    d->endPage();
    return d->found;
}

} // namespace cabledoc
