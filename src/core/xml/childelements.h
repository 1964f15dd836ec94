#pragma once

#include "numberednames.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <set>

namespace cabledoc {

/// The child elements of a QDomElement or a FlatNode in document order, for range-based loops. The loop must not remove
/// the current element.
template <typename Element> class ChildElements
{
public:
    class Iterator
    {
    public:
        explicit Iterator(const Element &element)
            : m_element(element)
        {
        }
        const Element &operator*() const { return m_element; }
        Iterator &operator++()
        {
            m_element = m_element.nextSiblingElement();
            return *this;
        }
        bool operator!=(const Iterator &other) const { return m_element != other.m_element; }

    private:
        Element m_element;
    };

    explicit ChildElements(const Element &parent)
        : m_parent(parent)
    {
    }
    Iterator begin() const { return Iterator(m_parent.firstChildElement()); }
    Iterator end() const { return Iterator(Element()); }

private:
    Element m_parent;
};

/// Returns the child elements as they are now. Later changes of the element do not affect the result.
QVector<QDomElement> allChildren(const QDomElement &parent);
/// Returns the first child element of each tag. These are the elements that a search by tag can find.
QVector<QDomElement> reachableChildren(const QDomElement &parent);
/// Returns the tags of the child elements in document order.
QStringList childTags(const QDomElement &parent);
/// Returns the attributes "id" of the child elements in document order.
QStringList childIds(const QDomElement &parent);
/// Returns the first child element with the given "id", or a null element if there is none.
QDomElement childWithId(const QDomElement &parent, const QString &id);
/// Returns the first child element of each "id". These are the elements that a search by id can find.
QVector<QDomElement> childrenWithId(const QDomElement &parent);

/// The names of an element's children. They are read once, so that adding a child does not walk over all the others.
class ChildNames
{
public:
    explicit ChildNames(const QDomElement &parent);

    bool containsId(const QString &id) const { return m_ids.count(id) != 0; }
    /// Returns the prefix with the smallest number from 1 on that makes a tag that no child has.
    QString firstFreeTag(const QString &prefix);
    /// Adds the names of a child. Must be called after the child has been added to the element.
    void insert(const QDomElement &child);

private:
    std::set<QString> m_tags;
    std::set<QString> m_ids;
    NumberedNames m_numbers;
};

} // namespace cabledoc
