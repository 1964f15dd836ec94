#pragma once

#include <QtCore/QString>

#include <functional>
#include <map>
#include <set>

namespace cabledoc {

/// A set of numbers, kept as intervals. The first number outside of the set is found without trying all numbers before
/// it.
class NumberSet
{
public:
    void insert(qint64 number);
    void remove(qint64 number);
    /// Returns the smallest number that is at least from and not in the set.
    qint64 firstFree(qint64 from) const;

private:
    /// First and last number of each interval. Intervals are never adjacent.
    std::map<qint64, qint64> m_intervals;
};

/// Returns the number after the last occurrence of the prefix in a name, such as 5 for "Zone" and "Zone 5". The number
/// is read as QString::toInt() reads it. Returns 0 if there is no number, or if it is negative or too large.
int numberAfter(const QString &prefix, const QString &name);

/// Finds unused names that consist of a prefix and a number, such as "Room12". Remembers the numbers of each prefix
/// that are in use, so that it tries no number twice.
class NumberedNames
{
public:
    /// Creates a finder for names whose numbers have at least the given count of digits, with leading zeros.
    explicit NumberedNames(int digits = 1)
        : m_digits(digits)
    {
    }

    /// Marks all names with the prefix as unused. From here on their numbers are remembered as they come into use.
    /// Saves the first call of firstFree() the time to find them.
    void watch(const QString &prefix) { m_taken[prefix] = NumberSet(); }

    /// Returns the name with the given prefix and number.
    QString name(const QString &prefix, qint64 number) const;
    /// Marks a name as used. Must be called for each name that comes into use.
    void insert(const QString &name);
    /// Marks a name as unused. Must be called for each name that goes out of use.
    void remove(const QString &name);

    using IsTaken = std::function<bool(const QString &name)>;

    /// Returns the smallest number that is at least from and makes an unused name with the prefix.
    qint64 firstFree(const QString &prefix, qint64 from, const IsTaken &isTaken);

private:
    void update(const QString &name, void (NumberSet::*change)(qint64));

    int m_digits;
    /// Numbers in use, by prefix.
    std::map<QString, NumberSet, std::less<>> m_taken;
};

/// Finds the last of the used names in string order. It knows some of the last ones, and looks through all names when
/// these have been removed.
class LastName
{
public:
    /// Must be called for each name that comes into use.
    void insert(const QString &name);
    /// Must be called for each name that goes out of use.
    void remove(const QString &name);
    /// Is called if names are in use that were not inserted.
    void forget();

    /// Calls the function with each used name.
    using ForEachName = std::function<void(const std::function<void(const QString &name)> &use)>;

    /// Returns the last name other than the ignored one, or an empty string if there is none.
    QString last(const ForEachName &forEachName, const QString &ignored = QString());

private:
    std::set<QString> m_last; ///< the first of these, and all used names after it
    bool m_isComplete = true; ///< whether these are all used names
};

} // namespace cabledoc
