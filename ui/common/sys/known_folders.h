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
// Both system libraries are loaded by name at each call. The log's own folder depends on this
// lookup, so a failure goes to the console streams and not to the log. Any thread.
int knownFolderPath(KnownFolder folder, std::wstring& path);

} // namespace sys
