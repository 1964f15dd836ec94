#include "lengths.h"

#include <QtCore/QRegularExpression>

#include <cmath>

namespace {

constexpr double metresInAFoot = 0.3048;

} // namespace

QString lengthUnit(bool metric)
{
    return metric ? QStringLiteral("m") : QStringLiteral("ft");
}

double inUnit(double feet, bool metric)
{
    return metric ? feet * metresInAFoot : feet;
}

QString lengthText(double length)
{
    return QString::number(length, 'f', 1);
}

QVariant lengthValue(const std::optional<double> &length)
{
    constexpr double decimals = 1000.0;
    return length && std::isfinite(*length) ? QVariant(std::round(*length * decimals) / decimals) : QVariant();
}

std::optional<double> readLength(const QString &text, bool metric)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("([0-9]{1,9}(?:\\.[0-9]{1,9})?) *(m|ft)")));
    const QRegularExpressionMatch match = form.match(text);
    const double number = match.captured(1).toDouble();
    if (number <= 0.0)
        return std::nullopt;
    const bool isMetric = match.captured(2) == QLatin1String("m");
    if (isMetric == metric)
        return number;
    return isMetric ? number / metresInAFoot : number * metresInAFoot;
}
