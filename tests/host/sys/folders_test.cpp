#include "tests/host/support/scoped_variable.h"
#include "ui/common/sys/folders.h"
#include "ui/common/sys/known_folders.h"

#include <gtest/gtest.h>

using host::ScopedVariable;
using sys::FolderKind;
using sys::folderPath;

TEST(Folders, AreBelowTheDesktopsBaseFolders)
{
    const ScopedVariable settings("XDG_CONFIG_HOME", "/roaming");
    const ScopedVariable data("XDG_DATA_HOME", "/local");
    EXPECT_EQ(folderPath(FolderKind::suiteSettings), L"/roaming/Lumacraft");
    EXPECT_EQ(folderPath(FolderKind::suiteSettings, L"ClipSaver"), L"/roaming/Lumacraft/ClipSaver");
    EXPECT_EQ(folderPath(FolderKind::logs), L"/roaming/Lumacraft/logs");
    EXPECT_EQ(folderPath(FolderKind::logs, L"ignored"), L"/roaming/Lumacraft/logs");
    EXPECT_EQ(folderPath(FolderKind::local, L"Cafe"), L"/local/Cafe");
    EXPECT_EQ(folderPath(static_cast<FolderKind>(17), L"ClipSaver"), L".");
}

TEST(Folders, AreInTheHomeFolderByDefault)
{
    const ScopedVariable home("HOME", "/home/ann");
    const ScopedVariable settings("XDG_CONFIG_HOME", nullptr);
    const ScopedVariable data("XDG_DATA_HOME", nullptr);
    std::wstring path;
    EXPECT_EQ(sys::knownFolderPath(sys::KnownFolder::roamingAppData, path), 0);
    EXPECT_EQ(path, L"/home/ann/.config");
    EXPECT_EQ(sys::knownFolderPath(sys::KnownFolder::localAppData, path), 0);
    EXPECT_EQ(path, L"/home/ann/.local/share");
}
