#include "ui/common/sys/module_path.h"

#include <gtest/gtest.h>

#include <filesystem>

TEST(ModulePath, IsThisProgramAndItsFolder)
{
    const std::filesystem::path path = sys::modulePath();
    EXPECT_EQ(path.filename(), "host_sys");
    EXPECT_TRUE(path.is_absolute());
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(std::filesystem::path(sys::moduleFolder()) / "host_sys", path);
}
