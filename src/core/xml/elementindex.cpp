#include "elementindex.h"

#include "words.h"

#include <algorithm>

namespace cabledoc {

namespace {

QString idOf(const QDomElement &element)
{
    return element.attribute(words::Id);
}

template <typename Map> QStringList namesIn(const Map &map)
{
    QStringList names;
    for (const auto &entry : map)
        names.append(entry.first);
    return names;
}

} // namespace

void ElementIndex::rebuild(const QVector<QDomElement> &elements)
{
    *this = ElementIndex(m_tagPrefix, m_idPrefix, m_idDigits);
    // There is room for further elements, so that the first one does not move all entries.
    const std::size_t count = std::size_t(elements.size()) + std::size_t(elements.size()) / 8 + 16;
    m_entries.reserve(count);
    m_ids.reserve(count);
    for (const QDomElement &element : elements)
        append(element);
}

void ElementIndex::append(const QDomElement &element)
{
    auto [entry, isNew] = m_entries.try_emplace(element.tagName());
    if (!isNew) {
        m_waiting[entry->first].push_back(element);
        return;
    }
    m_tagNames.insert(entry->first);
    m_lastTag.insert(entry->first);
    entry.value() = {idOf(element), element};
    m_ids.insert(entry->second.id, entry->first);
}

void ElementIndex::remove(const QDomElement &element)
{
    auto entry = m_entries.find(element.tagName());
    if (entry == m_entries.end())
        return;
    auto waiting = m_waiting.find(entry->first);
    if (entry->second.element == element) {
        m_ids.remove(entry->second.id, entry->first);
        if (waiting == m_waiting.end()) {
            m_tagNames.remove(entry->first);
            m_lastTag.remove(entry->first);
            m_entries.erase(entry);
            return;
        }
        const QDomElement next = waiting->second.front();
        waiting.value().pop_front();
        entry.value() = {idOf(next), next};
        m_ids.insert(entry->second.id, entry->first);
    } else if (waiting != m_waiting.end()) {
        waiting.value().remove(element);
    }
    if (waiting != m_waiting.end() && waiting->second.empty())
        m_waiting.erase(waiting);
}

void ElementIndex::updateId(const QDomElement &element)
{
    auto entry = m_entries.find(element.tagName());
    if (entry == m_entries.end() || entry->second.element != element)
        return;
    m_ids.remove(entry->second.id, entry->first);
    entry.value().id = idOf(element);
    m_ids.insert(entry->second.id, entry->first);
}

void ElementIndex::forgetElements()
{
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry)
        entry.value().element = QDomElement();
    m_waiting.clear();
}

QDomElement ElementIndex::element(const QString &tag) const
{
    const auto entry = m_entries.find(tag);
    return entry == m_entries.end() ? QDomElement() : entry->second.element;
}

QString ElementIndex::id(const QString &tag) const
{
    const auto entry = m_entries.find(tag);
    return entry == m_entries.end() ? QString() : entry->second.id;
}

QStringList ElementIndex::tags() const
{
    QStringList tags = namesIn(m_entries);
    tags.sort();
    return tags;
}

QStringList ElementIndex::idsByTag() const
{
    QStringList ids;
    for (const QString &tag : tags())
        ids.append(id(tag));
    return ids;
}

QString ElementIndex::lastTag(const QString &ignored)
{
    return m_lastTag.last(
        [this](const auto &use) {
            for (const auto &[tag, entry] : m_entries)
                use(tag);
        },
        ignored);
}

qint64 ElementIndex::firstFreeTagNumber(const QString &prefix, qint64 from)
{
    return m_tagNames.firstFree(prefix, from, [this](const QString &tag) { return containsTag(tag); });
}

bool ElementIndex::operator==(const ElementIndex &other) const
{
    return m_entries == other.m_entries && m_waiting == other.m_waiting && m_ids == other.m_ids;
}

void ContainerIndex::append(const QDomElement &element)
{
    m_elements.insert({idOf(element), element});
    m_ids.insert(idOf(element));
}

QDomElement ContainerIndex::element(const QString &id) const
{
    const auto found = m_elements.lower_bound(id);
    return found != m_elements.end() && found->first == id ? found->second : QDomElement();
}

QString ContainerIndex::lastId(const QString &ignoredTag) const
{
    const auto last = std::find_if(m_elements.crbegin(), m_elements.crend(), [&ignoredTag](const auto &candidate) {
        return candidate.second.tagName() != ignoredTag;
    });
    return last == m_elements.crend() ? QString() : last->first;
}

qint64 ContainerIndex::firstFreeIdNumber(const QString &prefix, qint64 from)
{
    return m_ids.firstFree(prefix, from, [this](const QString &id) { return m_elements.find(id) != m_elements.end(); });
}

void ContainerIndex::remove(const QDomElement &element)
{
    const auto [first, last] = m_elements.equal_range(idOf(element));
    const auto found =
        std::find_if(first, last, [&element](const auto &candidate) { return candidate.second == element; });
    if (found == last)
        return;
    const QString id = found->first;
    m_elements.erase(found);
    if (m_elements.find(id) == m_elements.end())
        m_ids.remove(id);
}

} // namespace cabledoc
