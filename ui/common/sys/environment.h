#pragma once

#include <string>

namespace sys {

// The value of an environment variable as UTF-8, empty when it is missing or longer than 2047
// characters. Any thread.
std::string environmentVariable(const char* name);

// The suite's environment switches are on only when the value is exactly "1".
inline bool environmentSwitch(const char* name)
{
    return environmentVariable(name) == "1";
}

} // namespace sys
