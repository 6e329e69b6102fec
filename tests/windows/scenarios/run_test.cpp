// Runs of the real program over applications with real installers.

#include "tests/windows/scenarios/installed_suite.h"

#include <gtest/gtest.h>

using namespace scenarios;
using ipctest::RunningProgram;

namespace {

// In the first row of the list, beside its check box.
constexpr int firstRowX = 80;
constexpr int firstRowY = 23;

using Uninstallers = std::vector<std::wstring>;

TEST(Scenario, SelectiveRunRemovesExactlyTheCheckedApplications)
{
    const InstalledSuite suite({beatGrid, photoStory, waveTuner});
    ASSERT_TRUE(suite.complete());
    const RunningProgram program({L"/app", beatGrid.idString}, suite.program());
    ASSERT_TRUE(program.ready());
    program.click(firstRowX, firstRowY);
    for (const WORD key : {WORD{VK_DOWN}, WORD{VK_DOWN}, WORD{VK_SPACE}})
        ipctest::pressKey(program.window(), key);
    program.clickUninstall();
    EXPECT_EQ(program.waitForExit(), 0U);

    for (const Application& chosen : {beatGrid, waveTuner}) {
        EXPECT_EQ(suite.removalArguments(chosen),
                  InstalledSuite::logSwitch(chosen) + L" /SILENT /SUPPRESSMSGBOXES");
        EXPECT_TRUE(suite.isRemoved(chosen, true));
    }
    EXPECT_TRUE(suite.isUntouched(photoStory));
    EXPECT_EQ(InstalledSuite::startedUninstallers(),
              (Uninstallers{suite.uninstaller(beatGrid), suite.uninstaller(waveTuner)}));
}

TEST(Scenario, FullRunRemovesEverythingAndTheSuiteLast)
{
    const InstalledSuite suite({tessera, beatGrid, waveTuner});
    ASSERT_TRUE(suite.complete());
    const RunningProgram program({}, suite.program());
    ASSERT_TRUE(program.ready());
    program.clickSelectAll();
    program.clickUninstall();
    EXPECT_EQ(program.waitForExit(), 0U);

    const std::wstring full = L"/SILENT /FULL /SUPPRESSMSGBOXES ";
    EXPECT_EQ(suite.removalArguments(beatGrid), full + L"/DISABLEREDIRECT");
    EXPECT_EQ(suite.removalArguments(waveTuner), full + L"/DISABLEREDIRECT");
    EXPECT_EQ(suite.removalArguments(tessera), full + L"/LASTAPP");
    for (const Application& application : {beatGrid, waveTuner, tessera})
        EXPECT_TRUE(suite.isRemoved(application, false));
    EXPECT_EQ(InstalledSuite::startedUninstallers(),
              (Uninstallers{suite.uninstaller(beatGrid), suite.uninstaller(waveTuner),
                            suite.uninstaller(tessera)}));
    DWORD mode = 0;
    DWORD size = sizeof(mode);
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, L"Software\\Corvane", L"UninstallMode",
                           RRF_RT_REG_DWORD, nullptr, &mode, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(mode, 1U);
}

} // namespace
