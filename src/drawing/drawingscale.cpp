#include "drawingscale.h"

#include "units.h"

#include <QtCore/QRegularExpression>

#include <cmath>

namespace cabledoc {

DrawingScale DrawingScale::of(const ScaleSettingsFields &fields)
{
    const ScaleSettings settings(fields);
    if (settings.style() != 1 && settings.style() != 2)
        return {};
    return {settings.isMetric() ? settings.scale() : settings.scale() * inchesInAFoot, settings.isMetric()};
}

std::optional<DrawingScale> DrawingScale::read(const QString &text)
{
    static const QRegularExpression ratio(QStringLiteral("^1\\s*:\\s*([1-9]\\d{0,5})$"));
    static const QRegularExpression feetToTheInch(
        QStringLiteral("^(?:1\\s*(?:in|\")\\s*=\\s*)?([1-9]\\d{0,5})\\s*(?:ft|')$"));
    const QRegularExpressionMatch metric = ratio.match(text.trimmed());
    if (metric.hasMatch())
        return DrawingScale{metric.captured(1).toDouble(), true};
    const QRegularExpressionMatch english = feetToTheInch.match(text.trimmed());
    if (english.hasMatch())
        return DrawingScale{english.captured(1).toDouble() * inchesInAFoot, false};
    return std::nullopt;
}

QString DrawingScale::text() const
{
    if (!exists())
        return {};
    return isMetric ? QStringLiteral("1:%1").arg(factor) : QStringLiteral("1 in = %1 ft").arg(factor / inchesInAFoot);
}

QString DrawingScale::lengthText(double millimeters) const
{
    constexpr double millimetersInAMeter = 1000.0;
    const double length = millimeters * factor;
    // No more decimals than a pixel of the plan is worth
    constexpr double centimeter = 10.0;
    const int decimals = factor * millimetersInAnInch / pixelsInAnInch < centimeter ? 2 : 1;
    if (isMetric)
        return QStringLiteral("%1 m").arg(length / millimetersInAMeter, 0, 'f', decimals);
    const qint64 inches = std::llround(length / millimetersInAnInch);
    const qint64 inchesOfAFoot = qint64(inchesInAFoot);
    return QStringLiteral("%1' %2\"").arg(inches / inchesOfAFoot).arg(inches % inchesOfAFoot);
}

} // namespace cabledoc
