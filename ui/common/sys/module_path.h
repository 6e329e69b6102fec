#pragma once

#include <string>

namespace sys {

// The full path of the running program, of any length; empty when the system does not tell it.
// Any thread. Not logged on failure: the log's own name depends on it.
std::wstring modulePath();

// The module path cut before its last path separator; empty when it has none.
std::wstring moduleFolder();

} // namespace sys
