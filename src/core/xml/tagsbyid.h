#pragma once

#include "numberednames.h"
#include "texthash.h"

#include <QtCore/QString>

#include <set>

namespace cabledoc {

/// Finds tags by their ids. Several tags may have the same id.
class TagsById
{
public:
    /// Creates an empty index. Generated ids consist of the prefix and a number with at least the given count of
    /// digits.
    TagsById(const QString &prefix, int digits)
        : m_digits(digits)
        , m_names(digits)
        , m_prefix(prefix)
    {
        m_names.watch(prefix);
    }

    void reserve(std::size_t count) { m_first.reserve(count); }
    void insert(const QString &id, const QString &tag);
    void remove(const QString &id, const QString &tag);

    bool contains(const QString &id) const { return m_first.count(id) != 0; }
    /// Returns the first tag, in string order, that has the given id, or an empty string if there is none.
    QString firstTag(const QString &id) const;

    /// Returns the id with the given prefix and number.
    QString numberedId(const QString &prefix, qint64 number) const { return m_names.name(prefix, number); }
    /// Returns the smallest number that is at least from and makes an unused id with the prefix.
    qint64 firstFreeNumber(const QString &prefix, qint64 from);
    /// Returns the last tag, in string order, whose id consists of the prefix and the minimum number of digits, or an
    /// empty string if there is none.
    QString lastTagWithNumber(const QString &prefix);

    bool operator==(const TagsById &other) const { return m_first == other.m_first && m_others == other.m_others; }

private:
    bool isNumbered(const QString &id) const;

    /// First tag of each id, in string order.
    TextMap<QString> m_first;
    /// Other tags of each id.
    TextMap<std::set<QString>> m_others;
    int m_digits;
    NumberedNames m_names;
    /// The prefix that lastTagWithNumber() was last called with.
    QString m_prefix;
    /// Tags whose ids have this prefix and a number.
    LastName m_numbered;
};

} // namespace cabledoc
