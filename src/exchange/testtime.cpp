#include "testtime.h"

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

#include <algorithm>

namespace cabledoc {

namespace {

/// Returns whether a format of QDateTime::fromString() has the zone of the time.
bool hasZoneIn(const QString &format)
{
    bool isQuoted = false;
    return std::any_of(format.begin(), format.end(), [&isQuoted](QChar c) {
        isQuoted ^= c == QLatin1Char('\'');
        return !isQuoted && c == QLatin1Char('t');
    });
}

} // namespace

TestTime::TestTime(const QDateTime &time, bool hasZone)
    : m_time(time)
    , m_hasZone(hasZone)
{
}

std::optional<TestTime> TestTime::fromText(const QString &text)
{
    // Qt also reads forms that are not those of ISO 8601, such as "24:00" without seconds and a blank before the zone.
    static const QRegularExpression iso(QRegularExpression::anchoredPattern(
        QStringLiteral("[0-9]{4}-[0-9]{2}-[0-9]{2}([T ][0-9]{2}:[0-9]{2}(:[0-9]{2}([.,][0-9]{1,3})?)?"
                       "(?<zone>Z|[+-][0-9]{2}(:?[0-9]{2})?)?)?")));
    const QRegularExpressionMatch match = iso.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString zone = match.captured(QStringLiteral("zone"));
    const QString local = text.left(text.size() - zone.size());
    // With the zone of UTC, no hour of a local summer time is missing.
    QDateTime time = QDateTime::fromString(
        (local.contains(QLatin1Char(':')) ? local : local + QStringLiteral("T00:00")) + QLatin1Char('Z'), Qt::ISODate);
    if (!time.isValid())
        return std::nullopt;
    if (zone.size() > 1) {
        const int hours = zone.mid(1, 2).toInt();
        const int minutes = zone.size() > 3 ? zone.right(2).toInt() : 0;
        const int seconds = (hours * 60 + minutes) * 60;
        time = time.addSecs(zone.startsWith(QLatin1Char('-')) ? seconds : -seconds);
    }
    return TestTime(time, !zone.isEmpty());
}

std::optional<TestTime> TestTime::fromText(const QString &text, const QString &format)
{
    const bool hasZone = hasZoneIn(format);
    // With the zone of UTC, no hour of a local summer time is missing.
    QDateTime time = hasZone ? QLocale::c().toDateTime(text, format)
                             : QLocale::c().toDateTime(text + QStringLiteral(" UTC"), format + QStringLiteral(" t"));
    constexpr int firstYear = 1970;
    constexpr int century = 100;
    if (!format.contains(QLatin1String("yyyy")) && time.date().year() < firstYear)
        time = time.addYears(century);
    time = time.toUTC();
    // ISO 8601 has no sign before a year.
    if (!time.isValid() || time.date().year() < 1)
        return std::nullopt;
    return TestTime(time, hasZone);
}

QString TestTime::toText() const
{
    const QString text = m_time.toString(m_time.time().msec() == 0 ? Qt::ISODate : Qt::ISODateWithMs);
    return m_hasZone ? text : text.left(text.size() - 1);
}

bool TestTime::isAfter(const QDateTime &now) const
{
    return m_hasZone ? m_time > now : m_time > QDateTime(now.date(), now.time(), Qt::UTC);
}

} // namespace cabledoc
