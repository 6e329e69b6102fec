#include "tests/windows/support/scratch_folder.h"
#include "ui/common/config/common_config.h"
#include "ui/common/sys/folders.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

// The user's settings folder, empty before and removed after each test.
class CommonConfig : public testing::Test
{
protected:
    CommonConfig()
    {
        std::filesystem::remove_all(folder); // a test that was cut off may have left it
        std::filesystem::create_directories(folder);
    }
    ~CommonConfig() override { std::filesystem::remove_all(folder); }

    const std::filesystem::path folder = sys::folderPath(sys::FolderKind::suiteSettings);
    const std::filesystem::path file = folder / L"common.cfg";
};

} // namespace

TEST_F(CommonConfig, IsLoadedFromTheSuiteSettingsFolder)
{
    windows_tests::writeBytes(file, "Language=de\n");
    EXPECT_EQ(fs::makeCommonConfig()->getValue("Language", ""), "de");
}

TEST_F(CommonConfig, IsSavedThere)
{
    const auto config = fs::makeCommonConfig();
    config->setValue("Location", "DE");
    EXPECT_EQ(config->save(), 0);
    EXPECT_EQ(windows_tests::readBytes(file), "Location=DE\n");
}

TEST_F(CommonConfig, MissingFileGivesDefaults)
{
    const auto config = fs::makeCommonConfig();
    EXPECT_EQ(config->getValue("Language", "en"), "en");
    EXPECT_FALSE(config->isModified());
}

TEST_F(CommonConfig, FolderInPlaceOfTheFileGivesDefaults)
{
    std::filesystem::create_directory(file);
    EXPECT_EQ(fs::makeCommonConfig()->getValue("Language", "en"), "en");
}

TEST_F(CommonConfig, IsOneObjectForTheProcess)
{
    EXPECT_EQ(&fs::commonConfig(), &fs::commonConfig());
}
