#pragma once

#include <cstdio>
#include <cstdlib>

namespace bench {

// Ends a measurement that cannot go on, with the reason on the error stream and code 2.
[[noreturn]] inline void giveUp(const char* reason)
{
    std::fprintf(stderr, "the measurement was given up: %s\n", reason);
    std::exit(2);
}

} // namespace bench
