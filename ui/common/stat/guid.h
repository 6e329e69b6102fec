#pragma once

#include <functional>
#include <string>

namespace stats {

// A new random UUID as 36 lower-case characters, 8-4-4-4-12, without braces; empty when the
// system cannot make one. Any thread.
std::string createGuid();

// Replaces the source of createGuid; null brings the system's back. For tests, and not while
// another thread calls createGuid.
void setGuidSource(std::function<std::string()> source);

// A GUID from the system, whatever the source is.
std::string systemGuid();

} // namespace stats
