#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstddef>
#include <cstdint>

/// What the fuzzer decides: each choice takes a byte of the input, and is the first one when there are no more.
class Choices
{
public:
    Choices(const std::uint8_t *data, std::size_t size)
        : m_next(data)
        , m_end(data + size)
    {
    }

    bool atEnd() const { return m_next == m_end; }
    /// A number from 0 up to another one, which is no more than 256.
    int number(int below);
    /// True once in so many times.
    bool oneIn(int times) { return number(times) == times - 1; }
    /// One of the texts; an empty text if there are none.
    QString oneOf(const QStringList &texts);
    /// Mostly one of the tags, sometimes one that may be none of them or no tag at all.
    QString tag(const QStringList &tags);
    /// Text for users, with all that XML escapes.
    QString id();
    int whole();
    double real();

private:
    const std::uint8_t *m_next;
    const std::uint8_t *m_end;
};
