#pragma once

#include "numberednames.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <set>

namespace cabledoc {

/// The child elements of an element in document order, for range-based loops. The loop must not remove
/// the element that it is at.
class ChildElements
{
public:
    class Iterator
    {
    public:
        explicit Iterator(const QDomElement &element)
            : m_element(element)
        {
        }
        const QDomElement &operator*() const { return m_element; }
        Iterator &operator++()
        {
            m_element = m_element.nextSiblingElement();
            return *this;
        }
        bool operator!=(const Iterator &other) const { return m_element != other.m_element; }

    private:
        QDomElement m_element;
    };

    explicit ChildElements(const QDomElement &parent)
        : m_parent(parent)
    {
    }
    Iterator begin() const { return Iterator(m_parent.firstChildElement()); }
    Iterator end() const { return Iterator(QDomElement()); }

private:
    QDomElement m_parent;
};

/// The child elements as they are now; what is added or removed later does not count.
QVector<QDomElement> allChildren(const QDomElement &parent);
/// The first child element of each tag: those that a search by tag can find.
QVector<QDomElement> reachableChildren(const QDomElement &parent);
/// The tags of the child elements in document order.
QStringList childTags(const QDomElement &parent);
/// Their attributes "id".
QStringList childIds(const QDomElement &parent);
/// The first child element with that "id"; null when there is none.
QDomElement childWithId(const QDomElement &parent, const QString &id);
/// The first child element of each "id": those that a search by id can find.
QVector<QDomElement> childrenWithId(const QDomElement &parent);

/// The names of an element's children, read once: adding many children does not walk over all others for each.
class ChildNames
{
public:
    explicit ChildNames(const QDomElement &parent);

    bool containsId(const QString &id) const { return m_ids.count(id) != 0; }
    /// The prefix with the smallest number, from 1, that is no child's tag.
    QString firstFreeTag(const QString &prefix);
    /// To be called for a child that was added.
    void insert(const QDomElement &child);

private:
    std::set<QString> m_tags;
    std::set<QString> m_ids;
    NumberedNames m_numbers;
};

} // namespace cabledoc
