#pragma once

#include <cstdlib>
#include <string>

namespace ipctest {

// `stress` in the long variant of a test (TESSERA_STRESS=1, "make stress"), else `usual`.
inline int stressed(int usual, int stress)
{
    const char* value = std::getenv("TESSERA_STRESS");
    return value && std::string(value) == "1" ? stress : usual;
}

} // namespace ipctest
