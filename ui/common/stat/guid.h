#pragma once

#include <functional>
#include <string>

namespace stats {

// A new random UUID as 36 lower-case characters, 8-4-4-4-12, without braces; empty when the
// system cannot make one. Any thread.
std::string createGuid();

// Replaces what createGuid yields; null brings the system's UUIDs back. For tests, and not while
// another thread asks for a GUID.
void setGuidSource(std::function<std::string()> source);

// The system's own, whatever the source.
std::string systemGuid();

} // namespace stats
