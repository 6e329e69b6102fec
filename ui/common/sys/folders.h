#pragma once

// Where the suite keeps its files for the current user. Any thread.

#include <string>

namespace sys {

enum class FolderKind {
    suiteSettings, // <roaming application data>\Lumacraft, whatever the runtime brand
    logs,          // "logs" in it
    local,         // <local application data>
};

// The path of a folder, which need not exist; "." for any other kind. With a `name`, its sub-folder
// of that name; the logs have none. If the system cannot name a known folder, the path is
// relative to the current folder.
std::wstring folderPath(FolderKind kind, const std::wstring& name = {});

// The path of `name` in a folder.
std::wstring joinedPath(const std::wstring& folder, const std::wstring& name);

} // namespace sys
