#pragma once

#include "numberednames.h"
#include "texthash.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <list>
#include <map>
#include <set>

namespace cabledoc {

/// Finds the elements of one kind by tag and by id. Each search takes the same time among ten elements and among a
/// hundred thousand. An order is kept once it has been asked for, and changes then take a time that grows with the
/// logarithm of the number of elements.
///
/// A tag should be unique. If a file has it several times, the first element in document order counts, and the others
/// wait. When it is removed, the next one takes its place.
class ElementIndex
{
public:
    /// Creates an empty index. Numbers in generated ids have at least the given count of digits.
    explicit ElementIndex(int idDigits = 1)
        : m_idDigits(idDigits)
        , m_idNames(idDigits)
    {
    }

    /// Replaces the content of the index by the given elements, which must be in document order.
    void rebuild(const QVector<QDomElement> &elements);
    /// Adds an element. It must come after all other elements with its tag in document order.
    void append(const QDomElement &element);
    /// Removes an element. The next element with its tag takes its place.
    void remove(const QDomElement &element);
    /// Updates the index after the "id" of an element has been changed.
    void updateId(const QDomElement &element);
    /// Releases the elements, whose tree is about to be destroyed. Tags and ids stay.
    void forgetElements();

    bool isEmpty() const { return m_entries.empty(); }
    bool containsTag(const QString &tag) const { return m_entries.count(tag) != 0; }
    bool containsId(const QString &id) const { return m_tagOfId.count(id) != 0; }
    /// Returns the element with the given tag, or a null element if there is none.
    QDomElement element(const QString &tag) const;
    /// Returns whether several elements have the given tag.
    bool isRepeated(const QString &tag) const { return m_waiting.count(tag) != 0; }
    /// Returns the id of the element with the given tag, or an empty string if there is none.
    QString id(const QString &tag) const;
    /// Returns the first tag, in string order, whose element has the given id, or an empty string if there is none.
    QString tagOfId(const QString &id) const;
    /// Returns all tags in string order. They are sorted again with each call.
    QStringList tags() const;
    /// Returns the ids of all tags, in the order of the tags.
    QStringList ids() const;
    /// Returns the last tag in string order except for the ignored one, or an empty string if there is none.
    QString lastTag(const QString &ignored = QString());

    /// Returns the smallest number, at least from, that makes an unused tag with the prefix.
    qint64 firstFreeTagNumber(const QString &prefix, qint64 from);
    /// Returns the smallest number, at least from, that makes an unused id with the prefix.
    qint64 firstFreeIdNumber(const QString &prefix, qint64 from);
    /// Returns the id with the given prefix and number.
    QString numberedId(const QString &prefix, qint64 number) const { return m_idNames.name(prefix, number); }
    /// Returns the last tag, in string order, whose id consists of the prefix and the minimum number of digits, or an
    /// empty string if there is none.
    QString lastTagWithNumberedId(const QString &prefix);

    bool operator==(const ElementIndex &other) const;

private:
    struct Entry
    {
        QString id;
        QDomElement element;

        bool operator==(const Entry &other) const { return id == other.id && element == other.element; }
    };

    /// Makes the tag lead to the element, and the element's id to the tag. entry is the entry of the tag.
    void show(const QString &tag, const QDomElement &element, Entry *entry);
    /// Makes the id no longer lead to the tag.
    void hide(const QString &tag, const QString &id);
    /// Returns whether the id consists of m_idPrefix and the minimum number of digits.
    bool isNumberedId(const QString &id) const;

    /// First element of each tag.
    TextMap<Entry> m_entries;
    /// Other elements of each tag, in document order.
    TextMap<std::list<QDomElement>> m_waiting;
    /// First tag of each id, in string order.
    TextMap<QString> m_tagOfId;
    /// Other tags of each id.
    TextMap<std::set<QString>> m_waitingTagsOfId;
    int m_idDigits;
    NumberedNames m_tagNames;
    NumberedNames m_idNames;
    LastName m_lastTag;
    /// Prefix of the last call of lastTagWithNumberedId(), or null if there was none.
    QString m_idPrefix;
    /// Tags whose ids have this prefix and a number, and some whose ids had them before.
    std::set<QString> m_tagsWithNumberedId;
};

/// Finds the elements of one container by id. Elements with the same id are in document order.
class ContainerIndex
{
public:
    void append(const QDomElement &element);
    /// Returns the first element in document order with the given id, or a null element if there is none.
    QDomElement element(const QString &id) const;
    /// Returns the last id in string order, without those of elements with the ignored tag. Returns an empty string if
    /// there is none.
    QString lastId(const QString &ignoredTag) const;
    /// Returns the smallest number, at least from, that makes an unused id with the prefix.
    qint64 firstFreeIdNumber(const QString &prefix, qint64 from);
    void remove(const QDomElement &element);

    bool operator==(const ContainerIndex &other) const { return m_elements == other.m_elements; }

private:
    /// Elements by their ids.
    std::multimap<QString, QDomElement> m_elements;
    NumberedNames m_ids;
};

} // namespace cabledoc
