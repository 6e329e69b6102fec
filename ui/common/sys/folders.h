#pragma once

// Where the suite keeps its files for the current user. Any thread.

#include <string>

namespace sys {

enum class FolderKind {
    suiteSettings, // <roaming application data>\Lumacraft, whatever the runtime brand
    logs,          // "logs" in it
    local,         // <local application data>\<name>
};

// The index that stands for no application.
constexpr unsigned noAppIndex = 0xFFFFFFFF;

// The path of a folder, which need not exist; "." for any other kind. With an index, the suite
// settings folder is that application's own sub-folder. `localName` names the local folder. When
// the system does not tell a known folder, the path is relative to the current folder.
std::wstring folderPath(FolderKind kind, unsigned appIndex = noAppIndex,
                        const std::wstring& localName = {});

} // namespace sys
