#include "support/keelbase/platform.h"

#include <gtest/gtest.h>

using Keelbase::logFileBelow;

TEST(LogPath, IsTheProgramsNameInTheLogFolderOfTheSettings)
{
    EXPECT_EQ(logFileBelow("/roaming", "Suite", "/programs/Some Program.exe"),
              std::filesystem::path("/roaming/Suite/logs/Some Program.log"));
}

TEST(LogPath, IsEmptyWithoutAKnownFolder)
{
    EXPECT_EQ(logFileBelow("", "Suite", "/programs/Program.exe"), std::filesystem::path());
}

TEST(LogPath, IsEmptyWithoutAProgram)
{
    EXPECT_EQ(logFileBelow("/roaming", "Suite", ""), std::filesystem::path());
}
