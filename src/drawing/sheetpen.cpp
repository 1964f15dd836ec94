#include "sheetpen.h"

namespace cabledoc {

void SheetPen::line(const QPointF &from, const QPointF &to, const LineStyle &style)
{
    add(SceneLine{{from, to}, style});
}

double SheetPen::text(const QPointF &position, const QString &words, double size, bool isBold, const QColor &color)
{
    if (words.isEmpty())
        return 0.0;
    const SceneText text = m_measure.text(position, words, size, isBold, color);
    add(text);
    return text.width;
}

void SheetPen::centeredText(const QPointF &center, const QString &words, double size, bool isBold, const QColor &color)
{
    const double width = m_measure.width(words, size, isBold);
    text(center + QPointF(-width / 2, size * halfOfCapital), words, size, isBold, color);
}

void SheetPen::fittedText(const QPointF &position, const QString &words, double size, double width, bool isBold)
{
    const double natural = m_measure.width(words, size, isBold);
    text(position, words, natural > width ? size * width / natural : size, isBold);
}

} // namespace cabledoc
