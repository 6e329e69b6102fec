#include "ui/common/sys/environment.h"

#include <cstddef>
#include <cstdlib>

namespace sys {

std::string environmentVariable(const char* name)
{
    constexpr std::size_t longestValue = 2047;
    const char* const found = std::getenv(name);
    const std::string value = found != nullptr ? found : "";
    return value.size() <= longestValue ? value : std::string();
}

} // namespace sys
