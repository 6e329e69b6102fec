#include "ui/common/sys/folders.h"

#include "ui/common/sys/known_folders.h"

#include <filesystem>

namespace sys {

namespace {

// All applications of the suite share this folder under both brands.
constexpr const wchar_t* suiteFolderName = L"Lumacraft";

std::wstring knownFolder(KnownFolder folder)
{
    std::wstring path;
    knownFolderPath(folder, path);
    return path;
}

std::wstring suiteSettingsFolder()
{
    return joinedPath(knownFolder(KnownFolder::roamingAppData), suiteFolderName);
}

} // namespace

std::wstring folderPath(FolderKind kind, const std::wstring& name)
{
    switch (kind) {
    case FolderKind::suiteSettings:
        return name.empty() ? suiteSettingsFolder() : joinedPath(suiteSettingsFolder(), name);
    case FolderKind::logs:
        return joinedPath(suiteSettingsFolder(), L"logs");
    case FolderKind::local:
        return joinedPath(knownFolder(KnownFolder::localAppData), name);
    }
    return L".";
}

std::wstring joinedPath(const std::wstring& folder, const std::wstring& name)
{
    return (std::filesystem::path(folder) / name).wstring();
}

} // namespace sys
