#pragma once

#include <cstdio>
#include <cstdlib>

namespace bench {

// Prints the reason on the error stream and ends the program with code 2.
[[noreturn]] inline void giveUp(const char* reason)
{
    std::fprintf(stderr, "the measurement was given up: %s\n", reason);
    std::exit(2);
}

} // namespace bench
