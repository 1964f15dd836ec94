#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstddef>
#include <cstdint>

/// The decisions of the fuzzer. Each decision takes a byte of the input. If there are no more bytes, it is the first
/// choice.
class Choices
{
public:
    Choices(const std::uint8_t *data, std::size_t size)
        : m_next(data)
        , m_end(data + size)
    {
    }

    bool atEnd() const { return m_next == m_end; }
    /// Returns a number from 0 up to, but not including, the given one, which is at most 256.
    int number(int below);
    /// Returns true with a chance of one in the given number.
    bool oneIn(int times) { return number(times) == times - 1; }
    /// Returns one of the texts, or an empty text if there are none.
    QString oneOf(const QStringList &texts);
    /// Returns one of the tags in most cases. Otherwise returns a text that may not be one of them, or may not be a
    /// tag.
    QString tag(const QStringList &tags);
    /// Returns a text for users, with all characters that XML escapes.
    QString id();
    int whole();
    double real();

private:
    const std::uint8_t *m_next;
    const std::uint8_t *m_end;
};
