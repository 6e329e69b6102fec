#include "tests/host/support/temp_folder.h"
#include "ui/common/config/runtime_brand.h"

#include <gtest/gtest.h>

#include <filesystem>

using fs::runtimeBrandFor;

namespace {

// A program in "bin" below `parent`, which may hold a global.cfg.
class RuntimeBrand : public testing::Test
{
protected:
    std::wstring programBelow(const std::string& parent) const
    {
        std::filesystem::create_directories(folder.narrowPath(parent + "/bin"));
        return folder.path(std::wstring(parent.begin(), parent.end()) + L"/bin");
    }

    const host::TempFolder folder;
};

} // namespace

TEST_F(RuntimeBrand, FolderNameDecidesBeforeTheFile)
{
    const std::wstring suite = programBelow("Lumacraft");
    folder.write("Lumacraft/global.cfg", "CompanyBrandMode=1\n");
    EXPECT_EQ(runtimeBrandFor(suite), "Lumacraft");
    const std::wstring company = programBelow("Corvane");
    for (const wchar_t* const end : {L"", L"/", L"\\", L"/\\/"})
        EXPECT_EQ(runtimeBrandFor(company + end), "Corvane");
    EXPECT_EQ(runtimeBrandFor(folder.path(L"Corvane//bin")), "Corvane");
}

TEST_F(RuntimeBrand, FileDecidesUnderAnyOtherName)
{
    const std::wstring program = programBelow("Suite");
    EXPECT_EQ(runtimeBrandFor(program), "Lumacraft") << "there is no file yet";
    folder.write("Suite/global.cfg", "CompanyBrandMode=1\n");
    EXPECT_EQ(runtimeBrandFor(program), "Corvane");
    folder.write("Suite/global.cfg", "CompanyBrandMode=0\n");
    EXPECT_EQ(runtimeBrandFor(program), "Lumacraft");
    folder.remove("Suite/global.cfg");
    std::filesystem::create_directory(folder.narrowPath("Suite/global.cfg"));
    EXPECT_EQ(runtimeBrandFor(program), "Lumacraft");
}

TEST_F(RuntimeBrand, RelativeParentHasANameToo)
{
    EXPECT_EQ(runtimeBrandFor(L"Corvane/bin"), "Corvane");
}

TEST_F(RuntimeBrand, FolderWithoutAParentDoesNotUseTheCurrentFolder)
{
    folder.write("global.cfg", "CompanyBrandMode=1\n");
    const std::filesystem::path previous = std::filesystem::current_path();
    std::filesystem::current_path(folder.narrowPath(""));
    for (const wchar_t* const program : {L"", L"bin", L"/bin", L"\\", L"C:", L"///"})
        EXPECT_EQ(runtimeBrandFor(program), "Lumacraft");
    std::filesystem::current_path(previous);
}

TEST_F(RuntimeBrand, OfThisProgramIsConstant)
{
    EXPECT_EQ(fs::runtimeBrandName(), "Lumacraft");
    EXPECT_EQ(&fs::runtimeBrandName(), &fs::runtimeBrandName());
}
