#include "ui/uninstall/src/application_config.h"

#include "ui/common/sys/folders.h"
#include "ui/common/sys/text_convert.h"
#include "ui/uninstall/src/app_catalogue.h"

namespace uninstall {

std::wstring settingsFolder(unsigned appIndex)
{
    if (appIndex == noAppIndex)
        return sys::folderPath(sys::FolderKind::suiteSettings);
    return sys::folderPath(sys::FolderKind::suiteSettings,
                           sys::fromUtf8(idToString(static_cast<int>(appIndex))));
}

std::wstring applicationConfigPath(int appId)
{
    return sys::joinedPath(settingsFolder(static_cast<unsigned>(appId)),
                           sys::fromUtf8(idToString(appId)) + L".cfg");
}

} // namespace uninstall
