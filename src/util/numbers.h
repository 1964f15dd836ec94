#pragma once

#include <cmath>
#include <limits>

namespace cabledoc {

/// Returns the value without its fraction. A value that is too large or too small gives the nearest int, and one that
/// is not a number gives 0.
inline int truncated(double value)
{
    if (std::isnan(value))
        return 0;
    if (value <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    if (value >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return int(value);
}

} // namespace cabledoc
