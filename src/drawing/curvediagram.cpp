#include "curvediagram.h"

#include "drawingtext.h"
#include "scenepainter.h"
#include "sheetpen.h"

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

// The sizes of a diagram, in parts of the size of its numbers
constexpr double titlePart = 1.55;
constexpr double leftPart = 7.3;
constexpr double bottomPart = 2.7;
constexpr double topPart = 3.2;

const QColor gridColor(0xd0, 0xd0, 0xd0);
const LineStyle gridLine{gridColor, 0.15, LineStyle::Solid};

/// The range of the values of a diagram, in whole steps.
struct ValueRange
{
    double low;
    double high;
    double step;
};

ValueRange rangeOf(const TRUEPHY_PLOT_DATA &curve)
{
    double low = 0.0;
    double high = 0.0;
    for (int i = 0; i < curve.count; ++i) {
        const auto [least, most] = std::minmax(curve.plot_a[i], curve.plot_b[i]);
        low = std::min(low, double(least));
        high = std::max(high, double(most));
    }
    constexpr double steps = 6.0;
    const double rough = std::max(1.0, (high - low) / steps);
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    const double step = power * (rough <= 2.0 * power ? 2.0 : rough <= 5.0 * power ? 5.0 : 10.0);
    low = std::floor(low / step) * step;
    return {low, std::max(std::ceil(high / step) * step, low + step), step};
}

/// Returns a point that is rounded to dots.
QPointF rounded(const QPointF &point)
{
    return {std::round(point.x() / dotSize) * dotSize, std::round(point.y() / dotSize) * dotSize};
}

/// Draws a diagram.
class Diagram
{
public:
    Diagram(Scene *page, const QRectF &area, const TRUEPHY_PLOT_DATA &curve, const CurveStyle &style)
        : m_pen(page, style.measure)
        , m_style(style)
        , m_area(area.marginsRemoved(
              {style.numberSize * leftPart, style.numberSize * topPart, 0.0, style.numberSize * bottomPart}))
        , m_curve(curve)
        , m_range(rangeOf(curve))
    {
    }

    void draw(const QString &title)
    {
        const double titleSize = m_style.numberSize * titlePart;
        m_pen.text(m_area.topLeft() - QPointF(0.0, m_style.numberSize), title, titleSize, true);
        drawValues();
        drawSamples();
        m_pen.add(rectangle(m_area, QColor(), thinLine));
        if (m_curve.count <= 0) {
            m_pen.centeredText(m_area.center(), DrawingText::tr("No samples"), titleSize, false, dimColor);
            return;
        }
        drawSeries(m_curve.plot_a, 0);
        drawSeries(m_curve.plot_b, 1);
    }

private:
    double yOf(double value) const
    {
        return m_area.bottom() - (value - m_range.low) / (m_range.high - m_range.low) * m_area.height();
    }

    double xOf(double sample) const
    {
        return m_area.left() + sample / (TRUEPHY_PLOT_DATA::sampleCount - 1) * m_area.width();
    }

    void drawValues()
    {
        const double size = m_style.numberSize;
        const double gap = size / 2.0;
        const int steps = int(std::lround((m_range.high - m_range.low) / m_range.step));
        for (int i = 0; i <= steps; ++i) {
            const double value = m_range.low + i * m_range.step;
            const double y = yOf(value);
            m_pen.line({m_area.left(), y}, {m_area.right(), y}, gridLine);
            const QString number = QString::number(value, 'f', 0);
            m_pen.text({m_area.left() - gap - m_style.measure.width(number, size), y + size * halfOfCapital}, number,
                       size);
        }
    }

    void drawSamples()
    {
        const double size = m_style.numberSize;
        // The numbers of narrow diagrams stand apart.
        const int step = m_area.width() < size * 40.0 ? 64 : 32;
        for (int sample = 0; sample < TRUEPHY_PLOT_DATA::sampleCount; sample += step) {
            const double x = xOf(sample);
            m_pen.line({x, m_area.top()}, {x, m_area.bottom()}, gridLine);
            m_pen.centeredText({x, m_area.bottom() + size}, QString::number(sample), size);
        }
    }

    void drawSeries(const qint32 *samples, int number)
    {
        SceneLine line;
        line.style = curveLines().at(std::size_t(number));
        for (int i = 0; i < m_curve.count; ++i)
            line.points.append(rounded({xOf(i), yOf(samples[i])}));
        m_pen.add(line);
    }

    SheetPen m_pen;
    const CurveStyle &m_style;
    const QRectF m_area;
    const TRUEPHY_PLOT_DATA &m_curve;
    const ValueRange m_range;
};

} // namespace

const std::array<LineStyle, 2> &curveLines()
{
    static const std::array<LineStyle, 2> lines{LineStyle{QColor(0x1f, 0x5a, 0x96), 0.35, LineStyle::Solid},
                                                LineStyle{QColor(0xd5, 0x5e, 0x00), 0.35, LineStyle::Dashed}};
    return lines;
}

void drawCurve(Scene *page, const QRectF &area, const QString &title, const TRUEPHY_PLOT_DATA &curve,
               const CurveStyle &style)
{
    Diagram(page, area, curve, style).draw(title);
}

} // namespace cabledoc
