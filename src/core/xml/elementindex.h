#pragma once

#include "numberednames.h"
#include "tagsbyid.h"
#include "texthash.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <list>
#include <map>
#include <set>

namespace cabledoc {

/// Finds the elements of one kind by tag and by id. Each search takes the same time among ten elements and among a
/// hundred thousand. The index keeps an order of the tags from the first call that needs it. From then on the time of a
/// change grows with the logarithm of the number of elements.
///
/// A tag should be unique. If several elements have the same tag, searches find the first one in document order. When
/// that is removed, the next one takes its place.
class ElementIndex
{
public:
    /// Creates an empty index. Generated tags and ids consist of these prefixes and a number, which has at least the
    /// given count of digits in an id. Other prefixes can be asked for too.
    explicit ElementIndex(const QString &tagPrefix = QString(), const QString &idPrefix = QString(), int idDigits = 1)
        : m_tagPrefix(tagPrefix)
        , m_idPrefix(idPrefix)
        , m_idDigits(idDigits)
        , m_ids(idPrefix, idDigits)
    {
        m_tagNames.watch(tagPrefix);
    }

    /// Replaces the content of the index with the given elements, which must be in document order.
    void rebuild(const QVector<QDomElement> &elements);
    /// Adds an element. It must come after all other elements with its tag in document order.
    void append(const QDomElement &element);
    /// Removes an element. The next element with its tag takes its place.
    void remove(const QDomElement &element);
    /// Updates the index after the "id" of an element has been changed.
    void updateId(const QDomElement &element);
    /// Releases the elements, whose tree is about to be destroyed. Tags and ids stay.
    void forgetElements();

    bool containsTag(const QString &tag) const { return m_entries.count(tag) != 0; }
    /// Returns the index that finds tags by ids.
    TagsById &ids() { return m_ids; }
    const TagsById &ids() const { return m_ids; }
    /// Returns the element with the given tag, or a null element if there is none.
    QDomElement element(const QString &tag) const;
    /// Returns whether several elements have the given tag.
    bool isRepeated(const QString &tag) const { return m_waiting.count(tag) != 0; }
    /// Returns the id of the element with the given tag, or an empty string if there is none.
    QString id(const QString &tag) const;
    /// Returns all tags in string order. Each call sorts them again.
    QStringList tags() const;
    /// Returns the ids of all tags, in the order of the tags.
    QStringList idsByTag() const;
    /// Returns the last tag in string order except for the ignored one, or an empty string if there is none.
    QString lastTag(const QString &ignored = QString());

    /// Returns the smallest number that is at least from and makes an unused tag with the prefix.
    qint64 firstFreeTagNumber(const QString &prefix, qint64 from);

    bool operator==(const ElementIndex &other) const;

private:
    struct Entry
    {
        QString id;
        QDomElement element;

        bool operator==(const Entry &other) const { return id == other.id && element == other.element; }
    };

    /// First element of each tag.
    TextMap<Entry> m_entries;
    /// Other elements of each tag, in document order.
    TextMap<std::list<QDomElement>> m_waiting;
    QString m_tagPrefix;
    QString m_idPrefix;
    int m_idDigits;
    NumberedNames m_tagNames;
    LastName m_lastTag;
    TagsById m_ids;
};

/// Finds the elements of one container by id. Elements with the same id are in document order.
class ContainerIndex
{
public:
    void append(const QDomElement &element);
    /// Returns the first element in document order with the given id, or a null element if there is none.
    QDomElement element(const QString &id) const;
    /// Returns the last id in string order. Leaves out elements with the ignored tag. Returns an empty string if there
    /// is no id.
    QString lastId(const QString &ignoredTag) const;
    /// Returns the smallest number that is at least from and makes an unused id with the prefix.
    qint64 firstFreeIdNumber(const QString &prefix, qint64 from);
    void remove(const QDomElement &element);

    bool operator==(const ContainerIndex &other) const { return m_elements == other.m_elements; }

private:
    /// Elements by their ids.
    std::multimap<QString, QDomElement> m_elements;
    NumberedNames m_ids;
};

} // namespace cabledoc
