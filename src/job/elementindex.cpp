#include "elementindex.h"

#include "words.h"

#include <algorithm>
#include <array>
#include <vector>

namespace cabledoc {

namespace {

QString idOf(const QDomElement &element)
{
    return element.attribute(words::Id);
}

/// Passes on the names in an ordered container that begin with the prefix.
template <typename Iterator, typename NameOf>
NumberedNames::Names namesWithPrefix(const QString &prefix, Iterator first, Iterator end, NameOf nameOf)
{
    return [=](const std::function<void(const QString &)> &use) {
        for (Iterator it = first; it != end && nameOf(*it).startsWith(prefix); ++it)
            use(nameOf(*it));
    };
}

/// The beginning of a text as a number that compares as the text does, as far as it goes.
class Beginning
{
public:
    explicit Beginning(const QString &text)
    {
        bool isBeyond = false; // from what does not fit on, all texts count as equal
        for (int i = 0; i < 2 * charactersOfNumber && (isBeyond || i < text.size()); ++i) {
            const char16_t character = isBeyond ? char16_t(0xFF) : text.at(i).unicode();
            isBeyond = character >= 0xFF;
            const int place = charactersOfNumber - 1 - i % charactersOfNumber;
            m_numbers.at(i / charactersOfNumber) |= quint64(isBeyond ? 0xFF : character) << (8 * place);
        }
    }

    bool operator<(const Beginning &other) const { return m_numbers < other.m_numbers; }
    bool operator!=(const Beginning &other) const { return m_numbers != other.m_numbers; }

private:
    static constexpr int charactersOfNumber = 8;
    std::array<quint64, 2> m_numbers{};
};

/// The positions of the texts in string order; those of equal texts as they are.
std::vector<std::size_t> inStringOrder(const std::vector<QString> &texts)
{
    // Most texts are told apart without a look at them.
    std::vector<std::pair<Beginning, std::size_t>> sorted;
    sorted.reserve(texts.size());
    for (const QString &text : texts)
        sorted.emplace_back(Beginning(text), sorted.size());
    std::sort(sorted.begin(), sorted.end(), [&texts](const auto &a, const auto &b) {
        if (a.first != b.first)
            return a.first < b.first;
        const int order = texts[a.second].compare(texts[b.second]);
        return order != 0 ? order < 0 : a.second < b.second;
    });
    std::vector<std::size_t> positions;
    positions.reserve(sorted.size());
    for (const auto &[beginning, position] : sorted)
        positions.push_back(position);
    return positions;
}

} // namespace

void ElementIndex::rebuild(const QVector<QDomElement> &elements)
{
    *this = ElementIndex(m_idDigits);
    // The elements are read in their own order, which memory likes. What is sorted before is added at the end, without
    // a search for each.
    std::vector<QString> tags;
    std::vector<QString> ids;
    tags.reserve(std::size_t(elements.size()));
    ids.reserve(tags.capacity());
    for (const QDomElement &element : elements) {
        tags.push_back(element.tagName());
        ids.push_back(idOf(element));
    }
    std::vector<QString> shownTags;
    std::vector<QString> shownIds;
    for (const std::size_t position : inStringOrder(tags)) {
        const auto entry =
            m_entries.insert(m_entries.end(), {tags[position], {ids[position], elements.at(int(position))}});
        if (!isFirst(entry))
            continue;
        shownTags.push_back(entry->first);
        shownIds.push_back(entry->second.id);
    }
    for (const std::size_t position : inStringOrder(shownIds))
        m_ids.insert(m_ids.end(), {shownIds[position], shownTags[position]});
}

void ElementIndex::append(const QDomElement &element)
{
    const auto entry = m_entries.insert({element.tagName(), {idOf(element), element}});
    if (isFirst(entry))
        show(entry);
}

void ElementIndex::remove(const QDomElement &element)
{
    const auto entry = find(element);
    if (entry == m_entries.end())
        return;
    const bool wasFirst = isFirst(entry);
    if (wasFirst)
        hide(entry);
    const auto next = m_entries.erase(entry);
    if (wasFirst && next != m_entries.end() && isFirst(next) && next->first == element.tagName())
        show(next);
}

void ElementIndex::updateId(const QDomElement &element)
{
    const auto entry = find(element);
    if (entry == m_entries.end())
        return;
    if (!isFirst(entry)) {
        entry->second.id = idOf(element);
        return;
    }
    hide(entry);
    entry->second.id = idOf(element);
    show(entry);
}

void ElementIndex::forgetElements()
{
    for (auto &[tag, entry] : m_entries)
        entry.element = QDomElement();
}

bool ElementIndex::containsTag(const QString &tag) const
{
    return m_entries.find(tag) != m_entries.end();
}

bool ElementIndex::containsId(const QString &id) const
{
    const auto found = m_ids.lower_bound({id, QString()});
    return found != m_ids.end() && found->first == id;
}

QDomElement ElementIndex::element(const QString &tag) const
{
    const auto entry = m_entries.lower_bound(tag);
    return entry != m_entries.end() && entry->first == tag ? entry->second.element : QDomElement();
}

bool ElementIndex::isRepeated(const QString &tag) const
{
    const auto first = m_entries.lower_bound(tag);
    return first != m_entries.end() && first->first == tag && std::next(first) != m_entries.end()
           && !isFirst(std::next(first));
}

QString ElementIndex::id(const QString &tag) const
{
    const auto entry = m_entries.lower_bound(tag);
    return entry != m_entries.end() && entry->first == tag ? entry->second.id : QString();
}

QString ElementIndex::tagOfId(const QString &id) const
{
    const auto found = m_ids.lower_bound({id, QString()});
    return found != m_ids.end() && found->first == id ? found->second : QString();
}

QStringList ElementIndex::tags() const
{
    QStringList tags;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (isFirst(entry))
            tags.append(entry->first);
    }
    return tags;
}

QStringList ElementIndex::ids() const
{
    QStringList ids;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (isFirst(entry))
            ids.append(entry->second.id);
    }
    return ids;
}

QString ElementIndex::lastTag() const
{
    return m_entries.empty() ? QString() : m_entries.rbegin()->first;
}

QString ElementIndex::lastId() const
{
    return m_ids.empty() ? QString() : m_ids.rbegin()->first;
}

qint64 ElementIndex::firstFreeTagNumber(const QString &prefix, qint64 from)
{
    return m_numberedTags.firstFree(prefix, from,
                                    namesWithPrefix(prefix, m_entries.lower_bound(prefix), m_entries.end(),
                                                    [](const auto &entry) { return entry.first; }));
}

qint64 ElementIndex::firstFreeIdNumber(const QString &prefix, qint64 from)
{
    return m_numberedIds.firstFree(prefix, from,
                                   namesWithPrefix(prefix, m_ids.lower_bound({prefix, QString()}), m_ids.end(),
                                                   [](const auto &name) { return name.first; }));
}

bool ElementIndex::operator==(const ElementIndex &other) const
{
    return m_entries == other.m_entries && m_ids == other.m_ids;
}

bool ElementIndex::isFirst(Entries::const_iterator entry) const
{
    return entry == m_entries.begin() || std::prev(entry)->first != entry->first;
}

ElementIndex::Entries::iterator ElementIndex::find(const QDomElement &element)
{
    const auto [first, last] = m_entries.equal_range(element.tagName());
    const auto entry =
        std::find_if(first, last, [&element](const auto &candidate) { return candidate.second.element == element; });
    return entry == last ? m_entries.end() : entry;
}

void ElementIndex::show(Entries::const_iterator entry)
{
    const auto &[tag, value] = *entry;
    m_numberedTags.insert(tag);
    m_ids.insert({value.id, tag});
    m_numberedIds.insert(value.id);
    if (isNumberedId(value.id))
        m_tagsWithNumberedId.insert(tag);
}

void ElementIndex::hide(Entries::const_iterator entry)
{
    const auto &[tag, value] = *entry;
    m_numberedTags.remove(tag);
    m_ids.erase({value.id, tag});
    m_tagsWithNumberedId.erase(tag);
    if (!containsId(value.id))
        m_numberedIds.remove(value.id);
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
        for (const auto &[id, tag] : m_ids) {
            if (isNumberedId(id))
                m_tagsWithNumberedId.insert(tag);
        }
    }
    return m_tagsWithNumberedId.empty() ? QString() : *m_tagsWithNumberedId.rbegin();
}

void ContainerIndex::append(const QDomElement &element)
{
    m_elements.insert({idOf(element), element});
    m_numberedIds.insert(idOf(element));
}

QDomElement ContainerIndex::element(const QString &id) const
{
    const auto found = m_elements.lower_bound(id);
    return found != m_elements.end() && found->first == id ? found->second : QDomElement();
}

qint64 ContainerIndex::firstFreeIdNumber(const QString &prefix, qint64 from)
{
    return m_numberedIds.firstFree(prefix, from,
                                   namesWithPrefix(prefix, m_elements.lower_bound(prefix), m_elements.end(),
                                                   [](const auto &entry) { return entry.first; }));
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
        m_numberedIds.remove(id);
}

} // namespace cabledoc
