#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <list>
#include <map>

/// An element of an XML file. Answers are compared with it. It knows nothing about jobs and shares no code with the
/// library.
struct PlainElement
{
    QString name;
    std::map<QString, QString> attributes;
    /// A list, so that the addresses of elements stay the same.
    std::list<PlainElement> children;

    bool has(const QString &attribute) const { return attributes.count(attribute) != 0; }
    /// Returns the value of an attribute, or the other text if there is none.
    QString text(const QString &attribute, const QString &missing = QString()) const;
    /// Appends an empty element and returns it.
    PlainElement &add(const QString &childName);
    /// Returns the first child with the given name. Appends it if there is none.
    PlainElement &ensure(const QString &childName);

    bool operator==(const PlainElement &other) const
    {
        return name == other.name && attributes == other.attributes && children == other.children;
    }
};

/// Returns the first child with the given name. Returns null if there is none, or for a null element.
PlainElement *childOf(PlainElement *element, const QString &childName);
/// Returns the children, or none for a null element.
std::list<PlainElement> &childrenOf(PlainElement *element);
/// Returns the names of the children in document order, or their attributes "id". Returns none for a null element.
QStringList namesIn(const PlainElement *element, bool byTag);

/// Returns the elements of an XML text. Texts and comments do not count.
PlainElement parsePlain(const QByteArray &text);
/// Returns the elements as an XML text in Latin-1.
QByteArray plainText(const PlainElement &element);

/// Returns the element of another tree at the place where the next child of the list would be. Returns null if there is
/// none. The trees must be equal up to that place. root is the root of the tree that the list is in.
const PlainElement *nextChildIn(const PlainElement &otherRoot, const PlainElement &root, const PlainElement &list);
