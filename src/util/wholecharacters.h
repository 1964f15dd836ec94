#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// Returns the beginning of a text with at most the given number of UTF-16 units. A character of two units is not
/// divided.
inline QString beginOf(const QString &text, int size)
{
    const bool isDivided = size > 0 && size < text.size() && text.at(size - 1).isHighSurrogate();
    return text.left(isDivided ? size - 1 : size);
}

/// Returns the end of a text with at most the given number of UTF-16 units. A character of two units is not divided.
inline QString endOf(const QString &text, int size)
{
    const bool isDivided = size > 0 && size < text.size() && text.at(text.size() - size).isLowSurrogate();
    return text.right(isDivided ? size - 1 : size);
}

} // namespace cabledoc
