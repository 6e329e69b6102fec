#pragma once

#include "support/keelbase/keelbase.h"

namespace win32 {

// Writes "<api> failed: <error> (<the system's text for it>)" to the log at level 7, under the
// caller's category and source location. To be called right after the failed call, with its error
// number, which GetLastError() still returns afterwards. Any thread; never throws.
void logFailure(const Keelbase::LogSource& source, int line, const char* api,
                unsigned long error) noexcept;

} // namespace win32
