#include "freetextlines.h"

#include "qtcompat.h"
#include "units.h"

#include <algorithm>

namespace cabledoc {

QVector<SceneText> linesOf(const snapshot::FreeText &text, const QPointF &corner, double factor,
                           const TextMeasure &measure)
{
    constexpr double pointsInAnInch = 72.0;
    constexpr double smallest = 1.0; // points
    constexpr double largest = 1000.0;
    constexpr double lineHeight = 1.2;
    SceneText line;
    // A size that is not a number becomes the smallest.
    const double points = text.fontSize > smallest ? std::min(text.fontSize, largest) : smallest;
    line.size = points / pointsInAnInch * millimetersInAnInch * factor;
    line.isBold = text.bold;
    line.isItalic = text.italic;
    line.family = text.fontFamily;
    if (qtcompat::isColorName(text.color))
        line.color = QColor(text.color);
    line.position = corner + QPointF(0.0, line.size);
    QVector<SceneText> lines;
    const QStringList words = text.text.split(QLatin1Char('\n'));
    for (const QString &one : words) {
        line.text = one;
        measure.measure(&line);
        lines.append(line);
        line.position.ry() += line.size * lineHeight;
    }
    return lines;
}

} // namespace cabledoc
