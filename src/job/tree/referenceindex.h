#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <map>
#include <utility>

namespace cabledoc {

/// The tags that an element names in its attributes: a cable its ends and its path, a connection its ends, a
/// vertical run its cables, an active port its port.
QStringList tagsNamedBy(const QDomElement &element);

/// Which elements name a tag, so that what names an element can be found when the element goes.
class ReferenceIndex
{
public:
    void insert(const QDomElement &element);
    /// To be called before the element changes what it names.
    void remove(const QDomElement &element);
    QVector<QDomElement> elementsNaming(const QString &tag) const;

    bool operator==(const ReferenceIndex &other) const;

private:
    std::multimap<std::pair<QString, QString>, QDomElement> m_elements; ///< by the named tag and their own
};

} // namespace cabledoc
