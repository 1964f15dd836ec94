#include "childelements.h"

#include "words.h"

namespace cabledoc {

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
    const QStringList taken = childTags(parent);
    int number = 1;
    while (taken.contains(prefix + QString::number(number)))
        ++number;
    return prefix + QString::number(number);
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
