#include "ui/common/sys/folders.h"
#include "ui/common/sys/known_folders.h"

#include <gtest/gtest.h>

using sys::FolderKind;
using sys::folderPath;

namespace {

std::wstring known(sys::KnownFolder folder)
{
    std::wstring path;
    EXPECT_EQ(sys::knownFolderPath(folder, path), 0);
    return path;
}

std::wstring settings()
{
    return known(sys::KnownFolder::roamingAppData) + L"\\Lumacraft";
}

} // namespace

TEST(Folders, SuiteSettingsAreInTheRoamingFolder)
{
    EXPECT_EQ(folderPath(FolderKind::suiteSettings), settings());
    EXPECT_EQ(folderPath(FolderKind::suiteSettings, L"ClipSaver"), settings() + L"\\ClipSaver");
}

TEST(Folders, LogsAreInTheSuiteSettingsFolder)
{
    EXPECT_EQ(folderPath(FolderKind::logs), settings() + L"\\logs");
}

TEST(Folders, LocalFolderHasTheGivenName)
{
    EXPECT_EQ(folderPath(FolderKind::local, L"Caf\u00E9"),
              known(sys::KnownFolder::localAppData) + L"\\Caf\u00E9");
}

TEST(Folders, AnyOtherKindIsTheCurrentFolder)
{
    EXPECT_EQ(folderPath(static_cast<FolderKind>(17)), L".");
    EXPECT_EQ(folderPath(static_cast<FolderKind>(17), L"ClipSaver"), L".");
}
