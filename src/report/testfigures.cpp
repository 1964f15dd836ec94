#include "testfigures.h"

#include "curvediagram.h"
#include "drawingtext.h"
#include "reportcontent.h"
#include "sheetpen.h"

#include <array>

namespace cabledoc {

namespace {

constexpr int pairCount = 4;
constexpr int pinCount = 8;

// Millimetres
constexpr double pinDistance = 3.6;
constexpr double mapWidth = 42.0;
constexpr double pinSize = 2.4; // of the font
constexpr double pinWidth = 5.0;

/// The pins of a pair, and the colour of its wires. The wire of the first pin has white rings.
struct PairWiring
{
    std::array<int, 2> pins;
    QColor color;
};

const std::array<PairWiring, pairCount> &wiring()
{
    static const std::array<PairWiring, pairCount> pairs{{
        {{1, 2}, QColor(0xd9, 0x74, 0x00)},
        {{3, 6}, QColor(0x1a, 0x8a, 0x3a)},
        {{5, 4}, QColor(0x1f, 0x5a, 0x96)},
        {{7, 8}, QColor(0x7a, 0x4a, 0x21)},
    }};
    return pairs;
}

double heightOf(int pin)
{
    return (pin - 0.5) * pinDistance;
}

/// Adds what the lines of curves mean at the bottom of a figure.
void addLegend(Scene *scene, const TextMeasure &measure)
{
    constexpr double height = 4.0;
    constexpr double textSize = 2.2;
    constexpr double sample = 9.0; // length of a line
    SheetPen pen(scene, measure);
    const double y = scene->size.height() + height / 2.0;
    double x = sample;
    const QStringList names{DrawingText::tr("First series"), DrawingText::tr("Second series"),
                            DrawingText::tr("Values of the tester over the numbers of the samples")};
    for (int i = 0; i < names.size(); ++i) {
        if (i < int(curveLines().size())) {
            pen.line({x, y}, {x + sample, y}, curveLines().at(std::size_t(i)));
            x += sample + 1.5;
        }
        pen.text({x, y + textSize * halfOfCapital}, names.at(i), textSize);
        x += measure.width(names.at(i), textSize) + sample;
    }
    scene->size.rheight() += height;
}

} // namespace

Scene wireMapFigure(const TestDef &definition, const cable_struct &block, const TextMeasure &measure)
{
    Scene scene;
    scene.size = QSizeF(mapWidth, pinCount * pinDistance);
    SheetPen pen(&scene, measure);
    for (int pin = 1; pin <= pinCount; ++pin) {
        for (const double x : {pinWidth / 2.0, mapWidth - pinWidth / 2.0})
            pen.centeredText({x, heightOf(pin)}, QString::number(pin), pinSize);
    }
    for (const double x : {0.0, mapWidth - pinWidth})
        pen.add(rectangle({x, 0.0, pinWidth, scene.size.height()}, QColor(), thinLine));
    for (int pair = 0; pair < pairCount; ++pair) {
        const int far = block.wire_map[pair + 1];
        if (far >= pairCount)
            continue;
        const bool isWrong = far != definition.getPairTo(pair);
        const PairWiring &near = wiring().at(std::size_t(pair));
        for (std::size_t wire = 0; wire < near.pins.size(); ++wire) {
            const LineStyle style{isWrong ? QColor(0xc0, 0x00, 0x00) : near.color, isWrong ? 0.7 : 0.5,
                                  wire == 0 ? LineStyle::Dashed : LineStyle::Solid};
            pen.line({pinWidth, heightOf(near.pins.at(wire))},
                     {mapWidth - pinWidth, heightOf(wiring().at(std::size_t(far)).pins.at(wire))}, style);
        }
    }
    return scene;
}

std::optional<Scene> curvesFigure(const TestResults &results, const TextMeasure &measure)
{
    constexpr QSizeF size(90.0, 58.0);
    constexpr double gap = 3.0;
    constexpr double numberSize = 1.9;
    constexpr int columns = 2;
    const std::array<std::pair<QString, TRUEPHY_PLOT_DATA>, 3> curves{{
        {ReportText::tr("Near-end crosstalk"), results.next()},
        {ReportText::tr("Echo"), results.echo()},
        {ReportText::tr("Channel"), results.channel()},
    }};
    Scene scene;
    int count = 0;
    for (const auto &[title, curve] : curves) {
        if (curve.count <= 0)
            continue;
        const int row = count / columns;
        const QPointF corner(count % columns * size.width(), row * size.height());
        drawCurve(&scene, QRectF(corner, size).adjusted(0.0, 0.0, -gap, -gap), title, curve, {measure, numberSize});
        ++count;
    }
    if (count == 0)
        return std::nullopt;
    const int rows = (count + columns - 1) / columns;
    scene.size = QSizeF(std::min(count, columns) * size.width(), rows * size.height());
    addLegend(&scene, measure);
    return scene;
}

} // namespace cabledoc
