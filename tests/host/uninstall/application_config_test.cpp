#include "ui/common/sys/folders.h"
#include "ui/uninstall/src/application_config.h"

#include <gtest/gtest.h>

using uninstall::applicationConfigPath;
using uninstall::settingsFolder;

namespace {

std::wstring inSuiteSettings(const std::wstring& name)
{
    return sys::joinedPath(sys::folderPath(sys::FolderKind::suiteSettings), name);
}

} // namespace

TEST(SettingsFolder, OfNoApplicationIsTheSuites)
{
    EXPECT_EQ(settingsFolder(0xFFFFFFFF), sys::folderPath(sys::FolderKind::suiteSettings));
}

TEST(SettingsFolder, OfAnApplicationIsNamedByItsIdString)
{
    EXPECT_EQ(settingsFolder(60), inSuiteSettings(L"ClipSaver"));
    EXPECT_EQ(settingsFolder(0), inSuiteSettings(L"Tessera"));
}

TEST(ApplicationConfig, IsInTheApplicationsFolderNamedByItsIdString)
{
    EXPECT_EQ(applicationConfigPath(60),
              sys::joinedPath(inSuiteSettings(L"ClipSaver"), L"ClipSaver.cfg"));
    EXPECT_EQ(applicationConfigPath(0),
              sys::joinedPath(inSuiteSettings(L"Tessera"), L"Tessera.cfg"));
}
