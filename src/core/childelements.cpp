#include "childelements.h"

#include "numberednames.h"
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
