#include "ui/uninstall/src/registry_names.h"

#include <gtest/gtest.h>

#include <string>

using uninstall::listName;
using uninstall::shownName;

TEST(ShownName, IsTheFolderBehindTheBrand)
{
    struct Case
    {
        const char* what;
        std::string path;
        const char* brand;
        std::string expected;
    };
    const Case cases[] = {
        {"with a trailing separator", R"(C:\Program Files\Corvane\Clip Trimmer\)", "Corvane",
         "Clip Trimmer"},
        {"without one", R"(C:\Program Files\Corvane\Clip Trimmer)", "Corvane", "Clip Trimmer"},
        {"with further folders", R"(C:\Lumacraft\A\bin\x.exe)", "Lumacraft", "A"},
        {"the last brand folder counts", R"(C:\Corvane\x\Corvane\B\c)", "Corvane", "B"},
        {"the tail of a folder name counts", R"(C:\MyCorvane\A)", "Corvane", "A"},
        {"another brand", R"(C:\Lumacraft\A)", "Corvane", "C:"},
        {"other letter case", R"(C:\corvane\A)", "Corvane", "C:"},
        {"the brand at the end", R"(C:\Corvane\)", "Corvane", ""},
        {"the brand without a separator", R"(C:\Corvane)", "Corvane", "C:"},
        {"no separator at all", "somewhere", "Corvane", "somewhere"},
        {"a missing value", "", "Corvane", ""},
        {"letters beyond ASCII", "C:\\Corvane\\\xc3\x84pfel \xe6\x97\xa5\\x", "Corvane",
         "\xc3\x84pfel \xe6\x97\xa5"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(shownName(c.path, c.brand), c.expected);
    }
}

TEST(ListName, IsUninstallPathsOnlyForTheCompanyBrand)
{
    EXPECT_EQ(listName("Corvane"), "UninstallPaths");
    for (const char* brand : {"Lumacraft", "corvane", "CORVANE", "Corvane ", "Other", ""}) {
        SCOPED_TRACE(brand);
        EXPECT_EQ(listName(brand), "UninstPaths");
    }
}
