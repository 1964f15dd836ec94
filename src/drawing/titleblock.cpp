#include "titleblock.h"

#include "drawingtext.h"
#include "sheetlayout.h"
#include "sheetpen.h"

#include <QtGui/QImage>

#include <algorithm>

namespace cabledoc {

namespace {

/// A field of a title block.
struct TitleField
{
    QString name;
    QString value;
};

void addField(SheetPen *pen, const QRectF &area, const TitleField &field)
{
    pen->add(rectangle(area, QColor(), thinLine));
    pen->text(area.topLeft() + QPointF(1.5, 2.8), field.name, 1.7, false, dimColor);
    pen->fittedText(area.topLeft() + QPointF(1.5, 7.2), field.value, 3.0, area.width() - 3.0);
}

void addSmallTitle(SheetPen *pen, const QRectF &area, const TitleBlock &block)
{
    const QStringList words{block.subject, block.scale, block.date, block.sheet};
    pen->fittedText(area.bottomLeft() + QPointF(1.0, -1.6), words.join(QStringLiteral(" \u00b7 ")), 2.4,
                    area.width() - 2.0);
    pen->line(area.topLeft(), area.topRight());
}

/// Draws the logo at the right of an area, no higher than it. Returns the width that it takes.
double addLogo(SheetPen *pen, const QRectF &area, const QByteArray &logo)
{
    const QSizeF natural = QImage::fromData(logo).size();
    if (natural.isEmpty())
        return 0.0;
    const QSizeF size = natural.scaled({area.width() / 2, area.height()}, Qt::KeepAspectRatio);
    pen->add(
        ScenePicture{logo, QRectF(QPointF(area.right() - size.width(), area.center().y() - size.height() / 2), size)});
    return size.width() + 2.0;
}

} // namespace

void addTitleBlock(Scene *sheet, const TitleBlock &block, const TextMeasure &measure)
{
    const SheetParts parts(sheet->size);
    SheetPen pen(sheet, measure);
    if (parts.isSmall) {
        addSmallTitle(&pen, parts.title, block);
        return;
    }
    constexpr double headHeight = 12.0;
    constexpr double rowHeight = 9.2;
    const QRectF &area = parts.title;
    pen.line(area.topLeft(), area.bottomLeft());
    pen.line(area.topLeft(), area.topRight());
    const QRectF head(area.topLeft(), QSizeF(area.width(), headHeight));
    const double logoWidth = addLogo(&pen, head.marginsRemoved({1.5, 1.5, 1.5, 1.5}), block.logo);
    pen.fittedText(head.topLeft() + QPointF(1.5, 7.8), block.contractor, 4.0, head.width() - logoWidth - 3.0, true);
    const double half = area.width() / 2;
    const QVector<QVector<TitleField>> rows{
        {{DrawingText::tr("Site"), block.site}},
        {{block.kind, block.subject}},
        {{DrawingText::tr("Scale"), block.scale}, {DrawingText::tr("Date"), block.date}},
        {{DrawingText::tr("Revision"), block.revision}, {DrawingText::tr("Sheet"), block.sheet}}};
    double y = head.bottom();
    const double height = std::max(rowHeight, (area.bottom() - y) / double(rows.size()));
    for (const QVector<TitleField> &row : rows) {
        const double width = row.size() == 1 ? area.width() : half;
        for (int i = 0; i < row.size(); ++i)
            addField(&pen, QRectF(area.left() + i * width, y, width, height), row.at(i));
        y += height;
    }
}

} // namespace cabledoc
