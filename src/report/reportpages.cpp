#include "reportpages.h"

#include "reportcontent.h"
#include "sheetpen.h"

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
        , space{{size.width() - 2.0 * sideMargin, bottom() - topMargin}, measure, known}
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
        for (SceneItem &item : page.items)
            scaleBy(&item, style.zoom);
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
    const BlockSpace space;
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
            layOut(block, d->space, [this](const Piece &piece) { d->place(piece); });
        return;
    }
    QVector<Piece> pieces;
    double height = 0.0;
    for (const ReportBlock &block : group.blocks) {
        layOut(block, d->space, [&pieces, &height](const Piece &piece) {
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
