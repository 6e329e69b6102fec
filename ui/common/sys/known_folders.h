#pragma once

#include <string>

namespace sys {

enum class KnownFolder {
    roamingAppData,
    localAppData,
};

// The path of one of the user's known folders, without a separator at its end. Returns 0, or
// E_FAIL (0x80004005) or the shell's own failure result with `path` empty.
//
// The system's libraries are loaded by name at each call. Failures are written to the standard
// error stream, not to the log. Any thread.
int knownFolderPath(KnownFolder folder, std::wstring& path);

} // namespace sys
