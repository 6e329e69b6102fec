#pragma once

#include <string>

namespace sys {

// The full path of the running program, of any length; empty if the system cannot provide it, which
// is not logged. Any thread.
std::wstring modulePath();

// The module path cut before its last path separator; empty when it has none.
std::wstring moduleFolder();

} // namespace sys
