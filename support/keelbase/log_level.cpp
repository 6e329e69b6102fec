#include "support/keelbase/log_level.h"

#include "support/keelbase/keelbase.h"

#include <charconv>
#include <cstdlib>
#include <cstring>

namespace Keelbase {

int levelFromEnvironment() noexcept
{
    const char* const text = std::getenv(levelVariable);
    if (text == nullptr)
        return defaultLevel;
    const char* const end = text + std::strlen(text);
    int level = 0;
    const auto [next, error] = std::from_chars(text, end, level);
    const bool isLevel = error == std::errc() && next == end && level >= 0;
    return isLevel ? level : defaultLevel;
}

} // namespace Keelbase
