#pragma once

#include <cstdlib>
#include <string>

namespace ipctest {

// `usual`, or `stress` in the long variant of a test, which TESSERA_STRESS=1 asks for
// (make stress).
inline int stressed(int usual, int stress)
{
    const char* value = std::getenv("TESSERA_STRESS");
    return value && std::string(value) == "1" ? stress : usual;
}

} // namespace ipctest
