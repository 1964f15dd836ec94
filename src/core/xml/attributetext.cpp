#include "attributetext.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace cabledoc {

namespace {

/// Reads a number in the plain form that nearly all files have: digits, with a sign or a point at most. Returns false
/// if the text has another form or the number is too large. This takes a small part of the time of Qt's functions, and
/// the value is the same.
template <typename Number> bool isPlainNumber(const QString &text, Number *value)
{
    std::array<char, 24> bytes{};
    if (text.isEmpty() || std::size_t(text.size()) > bytes.size())
        return false;
    char *end = bytes.data();
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        const bool isFirst = end == bytes.data();
        if (!(unit >= u'0' && unit <= u'9') && !(unit == u'-' && isFirst) && !(unit == u'.' && !isFirst))
            return false;
        *end++ = char(unit);
    }
    const auto [rest, error] = std::from_chars(bytes.data(), end, *value);
    return error == std::errc() && rest == end && *(end - 1) != '.';
}

} // namespace

QString toText(int value)
{
    return QString::number(value);
}

QString toText(bool value)
{
    return QLatin1String(value ? "1" : "0");
}

QString toText(double value)
{
    // Most numbers of a file are whole. The form below is the same, but takes several times as long.
    constexpr double firstWithExponent = 1e6;
    const bool isNegativeZero = value == 0.0 && std::signbit(value);
    if (std::abs(value) < firstWithExponent && value == std::trunc(value) && !isNegativeZero)
        return toText(int(value));
    // Not QString::number(): its shortest form differs between the versions of Qt ("100000", "1e+05").
    std::array<char, 32> text{};
    const char *end = text.data();
    double readBack = 0.0;
    for (int digits = 6; digits <= std::numeric_limits<double>::max_digits10; ++digits) {
        end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits).ptr;
        std::from_chars(text.data(), end, readBack);
        if (readBack == value)
            break;
    }
    return QString::fromLatin1(text.data(), int(end - text.data()));
}

void fromText(const QString &text, int *value)
{
    if (!isPlainNumber(text, value))
        *value = text.toInt();
}

void fromText(const QString &text, float *value)
{
    *value = text.toFloat();
}

void fromText(const QString &text, bool *value)
{
    *value = text == QLatin1String("1");
}

void fromText(const QString &text, double *value)
{
    if (!isPlainNumber(text, value))
        *value = text.toDouble();
}

bool holdsNumber(const QString &text, const int *)
{
    bool isNumber = true;
    if (!text.isEmpty())
        text.toInt(&isNumber);
    return isNumber;
}

bool holdsNumber(const QString &text, const float *)
{
    bool isNumber = true;
    return text.isEmpty() || (std::isfinite(text.toFloat(&isNumber)) && isNumber);
}

bool holdsNumber(const QString &text, const double *)
{
    bool isNumber = true;
    return text.isEmpty() || (std::isfinite(text.toDouble(&isNumber)) && isNumber);
}

QString toText(const QStringList &entries)
{
    return entries.join(QLatin1Char(','));
}

QStringList entriesIn(const QString &text)
{
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char(','));
}

} // namespace cabledoc
