#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

namespace stats {

// Reads a number as atoi does: leading white space, a sign, digits, then anything; 0 without
// digits. Unlike with atoi, a number outside the range of int becomes the nearest limit.
inline int decimalFromText(const std::string& text)
{
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

} // namespace stats
