#include "curvedrawing.h"

#include "drawingtext.h"
#include "pagesetup.h"
#include "sheetlayout.h"
#include "sheetpen.h"
#include "words.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cabledoc {

namespace {

// Millimetres
constexpr double titleSize = 3.4;
constexpr double numberSize = 2.2;
constexpr double axisWidth = 16.0; // left of a diagram
constexpr double axisHeight = 6.0; // below a diagram
constexpr double headHeight = 7.0; // above a diagram
constexpr double inset = 5.0;

const QColor gridColor(0xd0, 0xd0, 0xd0);
const LineStyle gridLine{gridColor, 0.15, LineStyle::Solid};
const std::array<LineStyle, 2> seriesLines{LineStyle{QColor(0x1f, 0x5a, 0x96), 0.35, LineStyle::Solid},
                                           LineStyle{QColor(0xd5, 0x5e, 0x00), 0.35, LineStyle::Dashed}};

/// A curve with its title.
struct TitledCurve
{
    QString title;
    TRUEPHY_PLOT_DATA curve;
};

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

/// Draws a diagram.
class Diagram
{
public:
    Diagram(Scene *page, const QRectF &area, const TitledCurve &curve, const TextMeasure &measure)
        : m_pen(page, measure)
        , m_measure(measure)
        , m_area(area.marginsRemoved({axisWidth, headHeight, 0.0, axisHeight}))
        , m_curve(curve)
        , m_range(rangeOf(curve.curve))
    {
    }

    void draw()
    {
        m_pen.text(m_area.topLeft() - QPointF(0.0, 2.4), m_curve.title, titleSize, true);
        drawValues();
        drawSamples();
        m_pen.add(rectangle(m_area, QColor(), thinLine));
        if (m_curve.curve.count <= 0) {
            m_pen.centeredText(m_area.center(), DrawingText::tr("No samples"), titleSize, false, dimColor);
            return;
        }
        drawSeries(m_curve.curve.plot_a, 0);
        drawSeries(m_curve.curve.plot_b, 1);
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
        constexpr double gap = 1.2;
        const int steps = int(std::lround((m_range.high - m_range.low) / m_range.step));
        for (int i = 0; i <= steps; ++i) {
            const double value = m_range.low + i * m_range.step;
            const double y = yOf(value);
            m_pen.line({m_area.left(), y}, {m_area.right(), y}, gridLine);
            const QString number = QString::number(value, 'f', 0);
            m_pen.text({m_area.left() - gap - m_measure.width(number, numberSize), y + numberSize * halfOfCapital},
                       number, numberSize);
        }
    }

    void drawSamples()
    {
        constexpr int step = 32;
        for (int sample = 0; sample < TRUEPHY_PLOT_DATA::sampleCount; sample += step) {
            const double x = xOf(sample);
            m_pen.line({x, m_area.top()}, {x, m_area.bottom()}, gridLine);
            m_pen.centeredText({x, m_area.bottom() + numberSize}, QString::number(sample), numberSize);
        }
    }

    void drawSeries(const qint32 *samples, int number)
    {
        SceneLine line;
        line.style = seriesLines.at(std::size_t(number));
        for (int i = 0; i < m_curve.curve.count; ++i)
            line.points.append({xOf(i), yOf(samples[i])});
        m_pen.add(line);
    }

    SheetPen m_pen;
    const TextMeasure &m_measure;
    const QRectF m_area;
    const TitledCurve &m_curve;
    const ValueRange m_range;
};

/// Explains the lines and what the cable is, in the column beside the diagrams.
PlanContent columnOf(const snapshot::Cable &cable)
{
    PlanContent content;
    content.name = cable.id;
    constexpr double half = 3.4;
    content.legend.append(ColumnEntry::heading(DrawingText::tr("Legend")));
    const QStringList names{DrawingText::tr("First series"), DrawingText::tr("Second series")};
    for (int i = 0; i < names.size(); ++i)
        content.legend.append(ColumnEntry::explaining(
            {SceneLine{{{-half, 0.0}, {half, 0.0}}, seriesLines.at(std::size_t(i))}}, names.at(i)));
    content.legend.append(
        ColumnEntry::listed({}, DrawingText::tr("Values of the tester over the numbers of the samples")));
    content.legend.append(ColumnEntry::heading(DrawingText::tr("Test")));
    const QVector<QPair<QString, QString>> fields{{DrawingText::tr("Type: %1"), cable.type},
                                                  {DrawingText::tr("Time: %1"), cable.test.time},
                                                  {DrawingText::tr("Status: %1"), cable.test.status},
                                                  {DrawingText::tr("Tester: %1"), cable.test.serialNumber},
                                                  {DrawingText::tr("Version: %1"), cable.test.softwareVersion}};
    for (const auto &[form, value] : fields) {
        if (!value.isEmpty())
            content.legend.append(ColumnEntry::listed({}, form.arg(value)));
    }
    return content;
}

} // namespace

DrawingResult drawCurves(const JobSnapshot &job, int cable, const DrawingOptions &options)
{
    const QString fontError = loadDrawingFonts();
    if (!fontError.isEmpty())
        return {{}, fontError, {}};
    const PageSetup setup(job, options, words::DetailedCableSettings);
    if (!setup.problem().isEmpty())
        return {{}, setup.problem(), {}};
    const TestResults results = job.testResults(cable);
    const QVector<TitledCurve> curves{{DrawingText::tr("Near-end crosstalk"), results.next()},
                                      {DrawingText::tr("Echo"), results.echo()},
                                      {DrawingText::tr("Channel"), results.channel()}};
    const snapshot::Cable &fields = job.cables().at(cable);
    if (std::all_of(curves.cbegin(), curves.cend(), [](const TitledCurve &curve) { return curve.curve.count <= 0; }))
        return {{}, DrawingText::tr("The cable \"%1\" has no response curves.").arg(fields.id), {}};
    const TextMeasure measure;
    DrawingResult result;
    result.drawing.pages =
        sheetsWith(columnOf(fields), {measure, setup.paper(), PlanOptions::Grow, {}, {}}, 0).pages.mid(0, 1);
    Scene &page = result.drawing.pages.first();
    const QRectF area = page.window.marginsRemoved({inset, inset, inset, inset});
    const double height = area.height() / double(curves.size());
    for (int i = 0; i < curves.size(); ++i)
        Diagram(&page, {area.left(), area.top() + i * height, area.width(), height}, curves.at(i), measure).draw();
    result.drawing.title = titleOf(job, DrawingText::tr("Response curves of %1").arg(fields.id));
    setup.complete(&result, DrawingText::tr("Response curves"), {fields.id}, {DrawingText::tr("None")});
    return result;
}

} // namespace cabledoc
