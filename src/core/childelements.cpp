#include "childelements.h"

#include "numberednames.h"
#include "words.h"

#include <QtCore/QSet>

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
    QSet<QString> tags;
    for (const QDomElement &child : ChildElements(parent)) {
        if (tags.contains(child.tagName()))
            continue;
        tags.insert(child.tagName());
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
    NumberedNames taken;
    const qint64 number = taken.firstFree(prefix, 1, [&parent](const auto &use) {
        for (const QDomElement &child : ChildElements(parent))
            use(child.tagName());
    });
    return taken.name(prefix, number);
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
