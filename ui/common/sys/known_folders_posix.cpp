#include "ui/common/sys/environment.h"
#include "ui/common/sys/known_folders.h"
#include "ui/common/sys/result_codes.h"
#include "ui/common/sys/text_convert.h"

namespace sys {

// The desktop's base folders stand for the user's known folders.
int knownFolderPath(KnownFolder folder, std::wstring& path)
{
    const bool roaming = folder == KnownFolder::roamingAppData;
    std::string found = environmentVariable(roaming ? "XDG_CONFIG_HOME" : "XDG_DATA_HOME");
    if (found.empty())
        found = environmentVariable("HOME") + (roaming ? "/.config" : "/.local/share");
    path = fromUtf8(found);
    return success;
}

} // namespace sys
