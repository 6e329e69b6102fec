#include "ui/common/sys/folders.h"

#include "ui/common/sys/known_folders.h"
#include "ui/common/sys/text_convert.h"
#include "ui/uninstall/src/app_catalogue.h"

#include <filesystem>

namespace sys {

namespace {

// All applications of the suite share this folder under both brands.
constexpr const wchar_t* suiteFolderName = L"Lumacraft";

std::filesystem::path knownFolder(KnownFolder folder)
{
    std::wstring path;
    knownFolderPath(folder, path);
    return path;
}

std::filesystem::path suiteSettingsFolder()
{
    return knownFolder(KnownFolder::roamingAppData) / suiteFolderName;
}

} // namespace

std::wstring folderPath(FolderKind kind, unsigned appIndex, const std::wstring& localName)
{
    switch (kind) {
    case FolderKind::suiteSettings:
        if (appIndex == noAppIndex)
            return suiteSettingsFolder();
        return suiteSettingsFolder() / fromUtf8(uninstall::idToString(static_cast<int>(appIndex)));
    case FolderKind::logs:
        return suiteSettingsFolder() / L"logs";
    case FolderKind::local:
        return knownFolder(KnownFolder::localAppData) / localName;
    }
    return L".";
}

} // namespace sys
