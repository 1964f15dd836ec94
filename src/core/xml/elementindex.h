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

/// The elements of one kind by tag and by id. Whatever is looked up costs the same among ten elements
/// and among a hundred thousand. Order is kept from when it is first asked for, and then costs the logarithm.
///
/// A tag should be unique. Where a file has it twice, the first element in document order stands for it
/// and the others wait behind: when it is removed, the next one takes its place.
class ElementIndex
{
public:
    /// The numbers in generated ids have that many digits at least.
    explicit ElementIndex(int idDigits = 1)
        : m_idDigits(idDigits)
        , m_idNames(idDigits)
    {
    }

    /// Takes these elements, given in document order, for those that it had.
    void rebuild(const QVector<QDomElement> &elements);
    /// Adds an element that comes behind all elements of its tag in document order.
    void append(const QDomElement &element);
    void remove(const QDomElement &element);
    /// Takes over the element's "id" after it was changed.
    void updateId(const QDomElement &element);
    /// Lets go of the elements, whose tree is about to end; tags and ids stay.
    void forgetElements();

    bool isEmpty() const { return m_entries.empty(); }
    bool containsTag(const QString &tag) const { return m_entries.count(tag) != 0; }
    bool containsId(const QString &id) const { return m_tagOfId.count(id) != 0; }
    /// The element of that tag; null when there is none.
    QDomElement element(const QString &tag) const;
    /// Whether several elements have that tag.
    bool isRepeated(const QString &tag) const { return m_waiting.count(tag) != 0; }
    /// The id of that tag; empty when there is none.
    QString id(const QString &tag) const;
    /// The first tag, in string order, that has that id; empty when there is none.
    QString tagOfId(const QString &id) const;
    /// All tags in string order, and the id of each in the order of the tags; sorted anew with each call.
    QStringList tags() const;
    QStringList ids() const;
    /// Returns the last tag in string order other than the ignored one, or an empty text if there is none.
    QString lastTag(const QString &ignored = QString());

    /// The smallest number, at least from, that makes an unused tag or id with the prefix.
    qint64 firstFreeTagNumber(const QString &prefix, qint64 from);
    qint64 firstFreeIdNumber(const QString &prefix, qint64 from);
    /// The id of that prefix and number.
    QString numberedId(const QString &prefix, qint64 number) const { return m_idNames.name(prefix, number); }
    /// The last tag, in string order, whose id is the prefix and as many digits as ids have at least; empty
    /// when there is none.
    QString lastTagWithNumberedId(const QString &prefix);

    bool operator==(const ElementIndex &other) const;

private:
    struct Entry
    {
        QString id;
        QDomElement element;

        bool operator==(const Entry &other) const { return id == other.id && element == other.element; }
    };

    /// Makes the element stand for its tag, whose entry is given, and the tag for the element's id.
    void show(const QString &tag, const QDomElement &element, Entry *entry);
    /// Makes the tag stand for that id no longer.
    void hide(const QString &tag, const QString &id);
    /// Whether the id is m_idPrefix and as many digits as ids have at least.
    bool isNumberedId(const QString &id) const;

    TextMap<Entry> m_entries;                     ///< by tag: the first element of each
    TextMap<std::list<QDomElement>> m_waiting;    ///< by tag: the others, in document order
    TextMap<QString> m_tagOfId;                   ///< by id: the first tag of each, in string order
    TextMap<std::set<QString>> m_waitingTagsOfId; ///< by id: the others
    int m_idDigits;
    NumberedNames m_tagNames;
    NumberedNames m_idNames;
    LastName m_lastTag;
    QString m_idPrefix;                     ///< what lastTagWithNumberedId() was last asked for; null before
    std::set<QString> m_tagsWithNumberedId; ///< those with that prefix, and some that had it
};

/// The elements of one container by id, those that share an id in document order.
class ContainerIndex
{
public:
    void append(const QDomElement &element);
    /// The first element in document order that has that id; null when there is none.
    QDomElement element(const QString &id) const;
    /// Returns the last id in string order, without elements of the ignored tag; an empty text if there is none.
    QString lastId(const QString &ignoredTag) const;
    /// The smallest number, at least from, that makes an unused id with the prefix.
    qint64 firstFreeIdNumber(const QString &prefix, qint64 from);
    void remove(const QDomElement &element);

    bool operator==(const ContainerIndex &other) const { return m_elements == other.m_elements; }

private:
    std::multimap<QString, QDomElement> m_elements; ///< by id
    NumberedNames m_ids;
};

} // namespace cabledoc
