#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <list>
#include <map>

/// An element of an XML file as it stands there: what answers are compared with. Knows nothing of jobs and shares no
/// code with the library.
struct PlainElement
{
    QString name;
    std::map<QString, QString> attributes;
    std::list<PlainElement> children; ///< a list, so that elements stay where they are

    bool has(const QString &attribute) const { return attributes.count(attribute) != 0; }
    /// The value of an attribute, or the other text if there is none.
    QString text(const QString &attribute, const QString &missing = QString()) const;
    /// Appends an empty element and returns it.
    PlainElement &add(const QString &childName);
    /// The first child of that name, which is appended if there is none.
    PlainElement &ensure(const QString &childName);

    bool operator==(const PlainElement &other) const
    {
        return name == other.name && attributes == other.attributes && children == other.children;
    }
};

/// The first child of that name; null for a null element and if there is none.
PlainElement *childOf(PlainElement *element, const QString &childName);
/// The children; none for a null element.
std::list<PlainElement> &childrenOf(PlainElement *element);
/// The names of the children in document order, or their attributes "id"; none for a null element.
QStringList namesIn(const PlainElement *element, bool byTag);

/// The elements of an XML text; texts and comments do not count.
PlainElement parsePlain(const QByteArray &text);
/// The elements as an XML text in Latin-1.
QByteArray plainText(const PlainElement &element);

/// The child that is in the place in which the list's next child would be, in a tree that is the same up to there.
/// Null if there is none. root is the root of the list's own tree.
const PlainElement *nextChildIn(const PlainElement &otherRoot, const PlainElement &root, const PlainElement &list);
