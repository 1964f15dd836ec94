#include "childelements.h"

#include "numberednames.h"
#include "words.h"

#include <set>

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

QString firstFreeTag(const QDomElement &parent, const QString &prefix)
{
    const QStringList tags = childTags(parent);
    const std::set<QString> taken(tags.cbegin(), tags.cend());
    NumberedNames names;
    return names.name(prefix,
                      names.firstFree(prefix, 1, [&taken](const QString &tag) { return taken.count(tag) != 0; }));
}

QDomElement childWithId(const QDomElement &parent, const QString &id)
{
    for (const QDomElement &child : ChildElements(parent)) {
        if (child.hasAttribute(words::Id) && child.attribute(words::Id) == id)
            return child;
    }
    return QDomElement();
}

} // namespace cabledoc
