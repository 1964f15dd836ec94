#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <functional>
#include <map>

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

/// The number behind the last occurrence of the prefix in a name, when nothing but digits follows; 0
/// otherwise.
int numberAfter(const QString &prefix, const QString &name);

/// Knows which of the names made of a prefix and a number ("Room12") are taken. The numbers of a prefix
/// are gathered when it is first asked for and kept in step from then on.
class NumberedNames
{
public:
    /// Numbers are written with that many digits at least, zeros before them.
    explicit NumberedNames(int digits = 1)
        : m_digits(digits)
    {
    }

    QString name(const QString &prefix, qint64 number) const;
    void clear() { m_numbers.clear(); }
    void insert(const QString &name);
    void remove(const QString &name);

    /// Calls its argument with every name in use that may begin with the prefix.
    using Names = std::function<void(const std::function<void(const QString &)> &)>;

    /// The smallest number, at least from, that makes a free name with the prefix. names is called when
    /// the prefix is new.
    qint64 firstFree(const QString &prefix, qint64 from, const Names &names);

private:
    int m_digits;
    QHash<QString, NumberSet> m_numbers; ///< by prefix
};

} // namespace cabledoc
