#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <map>
#include <utility>

namespace cabledoc {

/// Finds the elements that name a tag. When an element is removed, these have to be removed or changed too. A
/// connection names its ends, a vertical run its cables, and an active port its port.
class ReferenceIndex
{
public:
    void insert(const QDomElement &element);
    /// Must be called before the element is removed or an attribute changes that names tags.
    void remove(const QDomElement &element);
    QVector<QDomElement> elementsNaming(const QString &tag) const;

    bool operator==(const ReferenceIndex &other) const;

private:
    std::multimap<std::pair<QString, QString>, QDomElement> m_elements; ///< by the named tag and their own tag
};

} // namespace cabledoc
