#include "childelements.h"

#include "words.h"

namespace cabledoc {

QVector<QDomElement> allChildren(const QDomElement &parent)
{
    QVector<QDomElement> children;
    for (const QDomElement &child : ChildElements(parent))
        children.append(child);
    return children;
}

QVector<QDomElement> reachableChildren(const QDomElement &parent)
{
    QVector<QDomElement> children;
    std::set<QString> tags;
    for (const QDomElement &child : ChildElements(parent)) {
        if (tags.insert(child.tagName()).second)
            children.append(child);
    }
    return children;
}

QStringList childTags(const QDomElement &parent)
{
    QStringList tags;
    for (const QDomElement &child : ChildElements(parent))
        tags.append(child.tagName());
    return tags;
}

QStringList childIds(const QDomElement &parent)
{
    QStringList ids;
    for (const QDomElement &child : ChildElements(parent))
        ids.append(child.attribute(words::Id));
    return ids;
}

QDomElement childWithId(const QDomElement &parent, const QString &id)
{
    for (const QDomElement &child : ChildElements(parent)) {
        if (child.hasAttribute(words::Id) && child.attribute(words::Id) == id)
            return child;
    }
    return QDomElement();
}

QVector<QDomElement> childrenWithId(const QDomElement &parent)
{
    QVector<QDomElement> children;
    std::set<QString> ids;
    for (const QDomElement &child : ChildElements(parent)) {
        if (child.hasAttribute(words::Id) && ids.insert(child.attribute(words::Id)).second)
            children.append(child);
    }
    return children;
}

ChildNames::ChildNames(const QDomElement &parent)
{
    for (const QDomElement &child : ChildElements(parent))
        insert(child);
}

QString ChildNames::firstFreeTag(const QString &prefix)
{
    return m_numbers.name(
        prefix, m_numbers.firstFree(prefix, 1, [this](const QString &tag) { return m_tags.count(tag) != 0; }));
}

void ChildNames::insert(const QDomElement &child)
{
    m_tags.insert(child.tagName());
    m_numbers.insert(child.tagName());
    if (child.hasAttribute(words::Id))
        m_ids.insert(child.attribute(words::Id));
}

} // namespace cabledoc
