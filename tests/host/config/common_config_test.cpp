#include "tests/host/support/scoped_variable.h"
#include "tests/host/support/temp_folder.h"
#include "ui/common/config/common_config.h"

#include <gtest/gtest.h>

#include <filesystem>

TEST(CommonConfig, IsInTheSuiteSettingsFolder)
{
    const host::TempFolder folder;
    const host::ScopedVariable settings("XDG_CONFIG_HOME", folder.narrowPath("").c_str());
    std::filesystem::create_directory(folder.narrowPath("Lumacraft"));
    EXPECT_EQ(fs::makeCommonConfig()->getValue("Language", "en"), "en");
    folder.write("Lumacraft/common.cfg", "Language=de\n");
    const auto config = fs::makeCommonConfig();
    EXPECT_EQ(config->getValue("Language", "en"), "de");
    config->setValue("Location", "DE");
    EXPECT_EQ(config->save(), 0);
    EXPECT_EQ(folder.read("Lumacraft/common.cfg"), "Language=de\nLocation=DE\n");
}

TEST(CommonConfig, IsOneObjectForTheProcess)
{
    EXPECT_EQ(&fs::commonConfig(), &fs::commonConfig());
}
