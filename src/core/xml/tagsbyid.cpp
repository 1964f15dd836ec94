#include "tagsbyid.h"

#include <algorithm>

namespace cabledoc {

void TagsById::insert(const QString &id, const QString &tag)
{
    m_names.insert(id);
    if (isNumbered(id))
        m_numbered.insert(tag);
    auto [first, isNew] = m_first.try_emplace(id, tag);
    if (isNew)
        return;
    m_others[id].insert(std::max(tag, first->second));
    first.value() = std::min(tag, first->second);
}

void TagsById::remove(const QString &id, const QString &tag)
{
    if (isNumbered(id))
        m_numbered.remove(tag);
    auto first = m_first.find(id);
    auto others = m_others.find(id);
    if (others == m_others.end()) {
        m_first.erase(first);
        m_names.remove(id);
        return;
    }
    if (first->second == tag)
        first.value() = others.value().extract(others->second.begin()).value();
    else
        others.value().erase(tag);
    if (others->second.empty())
        m_others.erase(others);
}

QString TagsById::firstTag(const QString &id) const
{
    const auto first = m_first.find(id);
    return first == m_first.end() ? QString() : first->second;
}

qint64 TagsById::firstFreeNumber(const QString &prefix, qint64 from)
{
    return m_names.firstFree(prefix, from, [this](const QString &id) { return contains(id); });
}

bool TagsById::isNumbered(const QString &id) const
{
    return !m_prefix.isNull() && id.size() == m_prefix.size() + m_digits && id.startsWith(m_prefix)
           && std::all_of(id.cend() - m_digits, id.cend(),
                          [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

QString TagsById::lastTagWithNumber(const QString &prefix)
{
    if (m_prefix != prefix) {
        m_prefix = prefix;
        m_numbered.forget();
    }
    return m_numbered.last([this](const auto &use) {
        for (const auto &[id, tag] : m_first) {
            if (isNumbered(id))
                use(tag);
        }
        for (const auto &[id, tags] : m_others) {
            if (isNumbered(id))
                std::for_each(tags.begin(), tags.end(), use);
        }
    });
}

} // namespace cabledoc
