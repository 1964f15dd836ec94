#include "numberednames.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// Largest number of digits of a generated number.
constexpr int maximumDigits = 18;

/// So many of the last names are known at least, unless some of them have been removed.
constexpr int knownLastNames = 1000;

/// Calls use with each way to read the name as a prefix and a number. The number has at least the given count of
/// digits. If it has more, it has no leading zeros. For example, "B12" is "B" and 12, and if one digit is enough, it is
/// also "B1" and 2.
template <typename Use> void forEachReading(QStringView name, int minimumDigits, Use use)
{
    qint64 number = 0;
    qint64 placeValue = 1;
    for (int digits = 1; digits <= std::min(int(name.size()), maximumDigits); ++digits) {
        const char16_t character = name.at(name.size() - digits).unicode();
        if (character < u'0' || character > u'9')
            return;
        number += (character - u'0') * placeValue;
        placeValue *= 10;
        if (digits == minimumDigits || (digits > minimumDigits && character != u'0'))
            use(name.chopped(digits), number);
    }
}

} // namespace

int numberAfter(const QString &prefix, const QString &name)
{
    const auto position = name.lastIndexOf(prefix);
    // The position of an empty prefix would depend on the version of Qt.
    if (position < 0 || prefix.isEmpty())
        return 0;
    return std::max(0, name.mid(position + prefix.size()).toInt());
}

void NumberSet::insert(qint64 number)
{
    auto next = m_intervals.upper_bound(number);
    auto interval = m_intervals.end();
    if (next != m_intervals.begin()) {
        const auto previous = std::prev(next);
        if (previous->second >= number)
            return;
        if (previous->second == number - 1) {
            previous->second = number;
            interval = previous;
        }
    }
    if (interval == m_intervals.end())
        interval = m_intervals.emplace_hint(next, number, number);
    if (next != m_intervals.end() && next->first == number + 1) {
        interval->second = next->second;
        m_intervals.erase(next);
    }
}

void NumberSet::remove(qint64 number)
{
    auto interval = m_intervals.upper_bound(number);
    if (interval == m_intervals.begin())
        return;
    --interval;
    const auto [first, last] = *interval;
    if (number > last)
        return;
    if (number == first)
        m_intervals.erase(interval);
    else
        interval->second = number - 1;
    if (number < last)
        m_intervals.emplace(number + 1, last);
}

qint64 NumberSet::firstFree(qint64 from) const
{
    auto interval = m_intervals.upper_bound(from);
    if (interval == m_intervals.begin())
        return from;
    --interval;
    return interval->second < from ? from : interval->second + 1;
}

QString NumberedNames::name(const QString &prefix, qint64 number) const
{
    return prefix + QString::number(number).rightJustified(m_digits, QLatin1Char('0'));
}

void NumberedNames::insert(const QString &name)
{
    update(name, &NumberSet::insert);
}

void NumberedNames::remove(const QString &name)
{
    update(name, &NumberSet::remove);
}

void NumberedNames::update(const QString &name, void (NumberSet::*change)(qint64))
{
    if (m_taken.empty())
        return;
    forEachReading(name, m_digits, [this, change](QStringView prefix, qint64 number) {
        const auto taken = m_taken.find(prefix);
        if (taken != m_taken.end())
            (taken->second.*change)(number);
    });
}

qint64 NumberedNames::firstFree(const QString &prefix, qint64 from, const IsTaken &isTaken)
{
    NumberSet &taken = m_taken[prefix];
    qint64 number = taken.firstFree(from);
    while (isTaken(name(prefix, number))) {
        taken.insert(number);
        number = taken.firstFree(number);
    }
    return number;
}

void LastName::insert(const QString &name)
{
    if (!m_isComplete && (m_last.empty() || name < *m_last.begin()))
        return;
    m_last.insert(name);
    if (m_last.size() > 2 * knownLastNames) {
        m_last.erase(m_last.begin(), std::next(m_last.begin(), knownLastNames));
        m_isComplete = false;
    }
}

void LastName::remove(const QString &name)
{
    m_last.erase(name);
}

void LastName::forget()
{
    m_last.clear();
    m_isComplete = false;
}

QString LastName::last(const ForEachName &forEachName, const QString &ignored)
{
    // The ignored name may be one of them.
    if (!m_isComplete && m_last.size() < 2) {
        m_last.clear();
        m_isComplete = true;
        forEachName([this](const QString &name) { insert(name); });
    }
    auto last = m_last.crbegin();
    if (last != m_last.crend() && *last == ignored)
        ++last;
    return last == m_last.crend() ? QString() : *last;
}

} // namespace cabledoc
