#pragma once

#include "drawingfonts.h"
#include "scene.h"

namespace cabledoc {

const QColor dimColor(0x5a, 0x5a, 0x5a); ///< of what is less important
const LineStyle thinLine{QColor(Qt::black), 0.2, LineStyle::Solid};
constexpr double halfOfCapital = 0.36; ///< half the height of a capital letter, in parts of the size of the font

/// Adds shapes to the layer Layer::Sheet of a scene.
class SheetPen
{
public:
    SheetPen(Scene *sheet, const TextMeasure &measure)
        : m_sheet(sheet)
        , m_measure(measure)
    {
    }

    void add(const SceneShape &shape) { addToSheet(m_sheet, shape); }
    void line(const QPointF &from, const QPointF &to, const LineStyle &style = thinLine);
    /// Writes a text at the left end of its baseline. Returns its width. An empty text is not written.
    double text(const QPointF &position, const QString &words, double size, bool isBold = false,
                const QColor &color = Qt::black);
    /// Writes a text in the middle of a place.
    void centeredText(const QPointF &center, const QString &words, double size, bool isBold = false,
                      const QColor &color = Qt::black);
    /// Writes a text that is made smaller if it is wider than the given width.
    void fittedText(const QPointF &position, const QString &words, double size, double width, bool isBold = false);

private:
    Scene *m_sheet;
    const TextMeasure &m_measure;
};

} // namespace cabledoc
