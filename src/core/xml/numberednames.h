#pragma once

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <functional>
#include <map>
#include <optional>
#include <set>

namespace cabledoc {

/// A set of numbers as intervals, so that the first number outside of it is found without counting.
class NumberSet
{
public:
    void insert(qint64 number);
    void remove(qint64 number);
    /// The smallest number that is at least from and not in the set.
    qint64 firstFree(qint64 from) const;

private:
    std::map<qint64, qint64> m_intervals; ///< first to last number of each; never adjacent
};

/// Returns the number behind the last occurrence of the prefix in a name, read as QString::toInt() reads it: 5 for
/// "Zone" and "Zone 5". Returns 0 if there is no number, or one that is negative or overflows.
int numberAfter(const QString &prefix, const QString &name);

/// Finds free names made of a prefix and a number ("Room12"). Of the numbers of a prefix those that were found to be
/// taken are remembered and kept in step, so that none is tried twice.
class NumberedNames
{
public:
    /// Numbers are written with that many digits at least, zeros before them.
    explicit NumberedNames(int digits = 1)
        : m_digits(digits)
    {
    }

    QString name(const QString &prefix, qint64 number) const;
    /// To be called for names that come into use, and for those that go.
    void insert(const QString &name);
    void remove(const QString &name);

    using IsTaken = std::function<bool(const QString &name)>;

    /// The smallest number, at least from, that makes a free name with the prefix.
    qint64 firstFree(const QString &prefix, qint64 from, const IsTaken &isTaken);

private:
    void update(const QString &name, void (NumberSet::*change)(qint64));

    int m_digits;
    QMap<QString, NumberSet> m_taken; ///< by prefix
};

/// Knows the last of the names in use, in string order. They are gathered when it is first asked for and kept in step
/// from then on.
class LastName
{
public:
    void insert(const QString &name);
    void remove(const QString &name);

    using Gather = std::function<QStringList()>;

    /// Returns the last name other than the ignored one, or an empty text if there is none.
    QString last(const Gather &gather, const QString &ignored);

private:
    std::optional<std::set<QString>> m_names;
};

} // namespace cabledoc
