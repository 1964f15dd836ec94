#include "measurementtext.h"

#include "testencoding.h"
#include "units.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace cabledoc {

namespace {

/// The pins of the pairs.
constexpr std::array<const char *, 4> pairNames{"12", "36", "45", "78"};

constexpr int notMeasured = 60000; ///< the least reading of a pair that was not measured

int pairOfName(const QString &name)
{
    const auto *const found = std::find_if(pairNames.begin(), pairNames.end(),
                                           [&name](const char *pair) { return name == QLatin1String(pair); });
    return found == pairNames.end() ? -1 : int(found - pairNames.begin());
}

} // namespace

bool isUsableLengthConstant(int lengthConstant)
{
    // The range that TestDef::validDef() accepts.
    constexpr int lowest = 1000;
    constexpr int highest = 6500;
    return lengthConstant >= lowest && lengthConstant <= highest;
}

bool isLengthReading(int reading)
{
    return reading > 0 && reading < notMeasured;
}

std::optional<int> readingOf(double feet, int lengthConstant)
{
    const double reading = std::round(feet * (lengthConstant / 100.0));
    return reading >= 1.0 && reading < notMeasured ? std::make_optional(int(reading)) : std::nullopt;
}

QString lengthText(int reading, int lengthConstant, bool metric)
{
    const double factor = metric ? feetInAMeter : 1.0;
    const double length = reading / (lengthConstant / 100.0) / factor;
    constexpr int manyDigits = 6;
    for (int digits = 1; digits < manyDigits; ++digits) {
        const QString text = QString::number(length, 'f', digits);
        if (readingOf(text.toDouble() * factor, lengthConstant) == reading)
            return text;
    }
    return QString::number(length, 'f', manyDigits);
}

std::optional<WireMapText> readWireMap(const QString &text)
{
    WireMapText map;
    const QStringList words = text.simplified().split(QLatin1Char(' '));
    for (const QString &word : words) {
        const QStringList parts = word.split(QLatin1Char('>'));
        const int near = pairOfName(parts.constFirst());
        const int far = parts.size() == 2 ? pairOfName(parts.constLast()) : -1;
        if (near < 0 || far < 0) {
            map.saysMore = map.saysMore || !word.isEmpty();
            continue;
        }
        if (map.farPairs[near] != 0xFF)
            return std::nullopt;
        map.farPairs[near] = quint8(far);
    }
    return map;
}

QString wireMapText(const cable_struct &block)
{
    QStringList words;
    for (std::size_t pair = 0; pair < pairNames.size(); ++pair) {
        const quint8 far = block.wire_map[pair + 1];
        if (far < pairNames.size())
            words.append(QLatin1String(pairNames[pair]) + QLatin1Char('>') + QLatin1String(pairNames[far]));
    }
    return words.join(QLatin1Char(' '));
}

std::optional<cable_struct> readBlock(const QString &text)
{
    static const QRegularExpression digits(QRegularExpression::anchoredPattern(QStringLiteral("[0-9A-Fa-f]{96}")));
    if (!digits.match(text).hasMatch())
        return std::nullopt;
    cable_struct block = cable_struct::untested();
    fromText(text.toUpper(), &block);
    return block;
}

QString blockText(const cable_struct &block)
{
    return toText(block);
}

std::optional<TRUEPHY_PLOT_DATA> readCurve(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    const QStringList numbers = text.trimmed().split(separators);
    constexpr int count = TRUEPHY_PLOT_DATA::sampleCount;
    if (numbers.size() != 2 * count)
        return std::nullopt;
    TRUEPHY_PLOT_DATA curve{};
    curve.count = count;
    for (int i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        (i < count ? curve.plot_a[i] : curve.plot_b[i - count]) = numbers.at(i).toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    return curve;
}

QString curveText(const TRUEPHY_PLOT_DATA &curve)
{
    if (curve.count != TRUEPHY_PLOT_DATA::sampleCount)
        return QString();
    QStringList numbers;
    for (const auto &series : {&curve.plot_a, &curve.plot_b}) {
        for (const qint32 sample : *series)
            numbers.append(QString::number(sample));
    }
    return numbers.join(QLatin1Char(' '));
}

} // namespace cabledoc
