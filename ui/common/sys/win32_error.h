#pragma once

#include "support/keelbase/keelbase.h"

namespace win32 {

// Writes "<api> failed: <error> (<the system's text for it>)" to the log at level 7, under the
// caller's category and source place. To be called where the call failed, with the error number
// that it left; afterwards GetLastError() yields that number still. Any thread; never throws.
void logFailure(const Keelbase::LogSource& source, int line, const char* api,
                unsigned long error) noexcept;

} // namespace win32
