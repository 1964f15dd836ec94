#include "referenceindex.h"

#include "attributetext.h"
#include "jobschema.h"

#include <algorithm>

namespace cabledoc {

namespace {

QStringList tagsNamedBy(const QDomElement &element)
{
    QStringList tags;
    for (const QString &attribute : namingAttributes())
        tags += entriesIn(element.attribute(attribute));
    // removeDuplicates() would use Qt's hash for names that come from a file.
    tags.sort();
    tags.erase(std::unique(tags.begin(), tags.end()), tags.end());
    return tags;
}

} // namespace

void ReferenceIndex::insert(const QDomElement &element)
{
    const QStringList tags = tagsNamedBy(element);
    for (const QString &tag : tags)
        m_elements.insert({{tag, element.tagName()}, element});
}

void ReferenceIndex::remove(const QDomElement &element)
{
    const QStringList tags = tagsNamedBy(element);
    for (const QString &tag : tags) {
        const auto [first, last] = m_elements.equal_range({tag, element.tagName()});
        const auto found = std::find_if(first, last, [&element](const auto &entry) { return entry.second == element; });
        if (found != last)
            m_elements.erase(found);
    }
}

QVector<QDomElement> ReferenceIndex::elementsNaming(const QString &tag) const
{
    QVector<QDomElement> elements;
    for (auto entry = m_elements.lower_bound({tag, QString()}); entry != m_elements.end() && entry->first.first == tag;
         ++entry)
        elements.append(entry->second);
    return elements;
}

bool ReferenceIndex::operator==(const ReferenceIndex &other) const
{
    // Elements with the same tag that name the same tag may be in any order.
    return std::is_permutation(m_elements.begin(), m_elements.end(), other.m_elements.begin(), other.m_elements.end());
}

} // namespace cabledoc
