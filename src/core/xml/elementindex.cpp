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
    *this = ElementIndex(m_idDigits);
    m_entries.reserve(std::size_t(elements.size()));
    m_tagOfId.reserve(std::size_t(elements.size()));
    for (const QDomElement &element : elements)
        append(element);
}

void ElementIndex::append(const QDomElement &element)
{
    const auto [entry, isNew] = m_entries.try_emplace(element.tagName());
    if (!isNew) {
        m_waiting[entry->first].push_back(element);
        return;
    }
    m_tagNames.insert(entry->first);
    m_lastTag.insert(entry->first);
    show(entry->first, element, &entry->second);
}

void ElementIndex::remove(const QDomElement &element)
{
    const auto entry = m_entries.find(element.tagName());
    if (entry == m_entries.end())
        return;
    const auto waiting = m_waiting.find(entry->first);
    if (entry->second.element == element) {
        hide(entry->first, entry->second.id);
        if (waiting == m_waiting.end()) {
            m_tagNames.remove(entry->first);
            m_lastTag.remove(entry->first);
            m_entries.erase(entry);
            return;
        }
        show(entry->first, waiting->second.front(), &entry->second);
        waiting->second.pop_front();
    } else if (waiting != m_waiting.end()) {
        waiting->second.remove(element);
    }
    if (waiting != m_waiting.end() && waiting->second.empty())
        m_waiting.erase(waiting);
}

void ElementIndex::updateId(const QDomElement &element)
{
    const auto entry = m_entries.find(element.tagName());
    if (entry == m_entries.end() || entry->second.element != element)
        return;
    hide(entry->first, entry->second.id);
    show(entry->first, element, &entry->second);
}

void ElementIndex::forgetElements()
{
    for (auto &[tag, entry] : m_entries)
        entry.element = QDomElement();
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

QString ElementIndex::tagOfId(const QString &id) const
{
    const auto tag = m_tagOfId.find(id);
    return tag == m_tagOfId.end() ? QString() : tag->second;
}

QStringList ElementIndex::tags() const
{
    QStringList tags = namesIn(m_entries);
    tags.sort();
    return tags;
}

QStringList ElementIndex::ids() const
{
    QStringList ids;
    for (const QString &tag : tags())
        ids.append(id(tag));
    return ids;
}

QString ElementIndex::lastTag(const QString &ignored)
{
    return m_lastTag.last([this] { return namesIn(m_entries); }, ignored);
}

qint64 ElementIndex::firstFreeTagNumber(const QString &prefix, qint64 from)
{
    return m_tagNames.firstFree(prefix, from, [this](const QString &tag) { return containsTag(tag); });
}

qint64 ElementIndex::firstFreeIdNumber(const QString &prefix, qint64 from)
{
    return m_idNames.firstFree(prefix, from, [this](const QString &id) { return containsId(id); });
}

bool ElementIndex::operator==(const ElementIndex &other) const
{
    return m_entries == other.m_entries && m_waiting == other.m_waiting && m_tagOfId == other.m_tagOfId
           && m_waitingTagsOfId == other.m_waitingTagsOfId;
}

void ElementIndex::show(const QString &tag, const QDomElement &element, Entry *entry)
{
    *entry = {idOf(element), element};
    m_idNames.insert(entry->id);
    if (isNumberedId(entry->id))
        m_tagsWithNumberedId.insert(tag);
    const auto [first, isNew] = m_tagOfId.try_emplace(entry->id, tag);
    if (isNew)
        return;
    m_waitingTagsOfId[entry->id].insert(std::max(tag, first->second));
    first->second = std::min(tag, first->second);
}

void ElementIndex::hide(const QString &tag, const QString &id)
{
    const auto first = m_tagOfId.find(id);
    const auto waiting = m_waitingTagsOfId.find(id);
    if (waiting == m_waitingTagsOfId.end()) {
        m_tagOfId.erase(first);
        m_idNames.remove(id);
        return;
    }
    std::set<QString> &others = waiting->second;
    if (first->second == tag)
        first->second = others.extract(others.begin()).value();
    else
        others.erase(tag);
    if (others.empty())
        m_waitingTagsOfId.erase(waiting);
}

bool ElementIndex::isNumberedId(const QString &id) const
{
    return !m_idPrefix.isNull() && id.size() == m_idPrefix.size() + m_idDigits && id.startsWith(m_idPrefix)
           && std::all_of(id.cend() - m_idDigits, id.cend(),
                          [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

QString ElementIndex::lastTagWithNumberedId(const QString &prefix)
{
    if (m_idPrefix.isNull() || m_idPrefix != prefix) {
        m_idPrefix = prefix;
        m_tagsWithNumberedId.clear();
        for (const auto &[tag, entry] : m_entries) {
            if (isNumberedId(entry.id))
                m_tagsWithNumberedId.insert(tag);
        }
    }
    while (!m_tagsWithNumberedId.empty()) {
        const auto last = std::prev(m_tagsWithNumberedId.end());
        if (isNumberedId(id(*last)))
            return *last;
        m_tagsWithNumberedId.erase(last);
    }
    return QString();
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
