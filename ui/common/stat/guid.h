#pragma once

#include <string>

namespace stats {

// A new random UUID as 36 lower-case characters, 8-4-4-4-12, without braces; empty when the
// system cannot make one. Any thread.
std::string createGuid();

} // namespace stats
