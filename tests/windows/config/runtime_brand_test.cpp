#include "support/win32/unique_handle.h"
#include "tests/windows/support/scratch_folder.h"
#include "ui/common/config/runtime_brand.h"
#include "ui/common/sys/module_path.h"

#include <gtest/gtest.h>

#include <string>

using fs::runtimeBrandFor;
using windows_tests::ScratchFolder;
using windows_tests::writeBytes;

namespace {

// <scratch>\<parent>\bin, with an optional global.cfg in <parent>.
class RuntimeBrand : public testing::Test
{
protected:
    std::wstring programBelow(const std::wstring& parent)
    {
        std::filesystem::create_directories(scratch / parent / L"bin");
        return scratch / parent / L"bin";
    }
    std::string brandWithGlobalConfig(const std::string& content)
    {
        const std::wstring folder = programBelow(L"Suite");
        writeBytes(scratch / L"Suite" / L"global.cfg", content);
        return runtimeBrandFor(folder);
    }

    const ScratchFolder scratch;
};

} // namespace

TEST_F(RuntimeBrand, FolderAboveTheProgramsDecidesByItsName)
{
    EXPECT_EQ(runtimeBrandFor(programBelow(L"Corvane")), "Corvane");
    EXPECT_EQ(runtimeBrandFor(programBelow(L"Lumacraft")), "Lumacraft");
}

TEST_F(RuntimeBrand, FolderNameTakesPrecedenceOverTheFile)
{
    const std::wstring folder = programBelow(L"Lumacraft");
    writeBytes(scratch / L"Lumacraft" / L"global.cfg", "CompanyBrandMode=1\n");
    EXPECT_EQ(runtimeBrandFor(folder), "Lumacraft");
}

TEST_F(RuntimeBrand, FolderNamesAreComparedExactly)
{
    for (const wchar_t* const name : {L"corvane", L"CORVANE", L"Corvane 2", L"MyCorvane"})
        EXPECT_EQ(runtimeBrandFor(programBelow(name)), "Lumacraft");
}

TEST_F(RuntimeBrand, NameOfTheProgramsOwnFolderIsIgnored)
{
    std::filesystem::create_directories(scratch / L"Suite" / L"Corvane");
    EXPECT_EQ(runtimeBrandFor(scratch / L"Suite" / L"Corvane"), "Lumacraft");
}

TEST_F(RuntimeBrand, TrailingSeparatorsAreIgnored)
{
    const std::wstring folder = programBelow(L"Corvane");
    for (const wchar_t* const end : {L"\\", L"/", L"\\\\", L"\\/\\"})
        EXPECT_EQ(runtimeBrandFor(folder + end), "Corvane");
    EXPECT_EQ(runtimeBrandFor((scratch / L"Corvane").native() + L"\\\\bin"), "Corvane");
    EXPECT_EQ(runtimeBrandFor((scratch / L"Corvane").native() + L"/bin"), "Corvane");
}

TEST_F(RuntimeBrand, IsTheDefaultWithoutTheFile)
{
    EXPECT_EQ(runtimeBrandFor(programBelow(L"Suite \u8A66\u9A13")), "Lumacraft");
}

TEST_F(RuntimeBrand, FileDecidesUnderAnyOtherFolderName)
{
    EXPECT_EQ(brandWithGlobalConfig("CompanyBrandMode=1\n"), "Corvane");
    EXPECT_EQ(brandWithGlobalConfig("CompanyBrandMode = 1 \n"), "Corvane");
    EXPECT_EQ(brandWithGlobalConfig("CompanyBrandMode\t=\t1\t\r\n"), "Corvane");
    EXPECT_EQ(brandWithGlobalConfig("other=2\nno equals sign\nCompanyBrandMode=1"), "Corvane");
    EXPECT_EQ(brandWithGlobalConfig("CompanyBrandMode=01\n"), "Lumacraft");
    EXPECT_EQ(brandWithGlobalConfig("CompanyBrandMode=0\n"), "Lumacraft");
    EXPECT_EQ(brandWithGlobalConfig("CompanyBrandMode=\n"), "Lumacraft");
    EXPECT_EQ(brandWithGlobalConfig("companybrandmode=1\n"), "Lumacraft");
    EXPECT_EQ(brandWithGlobalConfig(" CompanyBrandMode=1\n"), "Lumacraft");
    EXPECT_EQ(brandWithGlobalConfig("CompanyBrandMode=0\nCompanyBrandMode=1\n"), "Lumacraft");
    EXPECT_EQ(brandWithGlobalConfig(""), "Lumacraft");
    EXPECT_EQ(brandWithGlobalConfig(std::string(4096, '\0')), "Lumacraft");
}

TEST_F(RuntimeBrand, FileIsFoundUnderNonAsciiPaths)
{
    const std::wstring folder = programBelow(L"Suite \u8A66\u9A13");
    writeBytes(scratch / L"Suite \u8A66\u9A13" / L"global.cfg", "CompanyBrandMode=1\n");
    EXPECT_EQ(runtimeBrandFor(folder + L"\\"), "Corvane");
}

TEST_F(RuntimeBrand, FileIsFoundUnderPathsThatWindowsTakesLiterally)
{
    const std::wstring folder = programBelow(L"Suite");
    writeBytes(scratch / L"Suite" / L"global.cfg", "CompanyBrandMode=1\n");
    EXPECT_EQ(runtimeBrandFor(L"\\\\?\\" + folder), "Corvane");
}

TEST_F(RuntimeBrand, UnreadableFileLeavesTheDefault)
{
    const std::wstring folder = programBelow(L"Suite");
    const std::filesystem::path file = scratch / L"Suite" / L"global.cfg";
    {
        writeBytes(file, "CompanyBrandMode=1\n");
        const win32::FileHandle lock(
            CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(lock);
        EXPECT_EQ(runtimeBrandFor(folder), "Lumacraft");
    }
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    EXPECT_EQ(runtimeBrandFor(folder), "Lumacraft");
}

TEST_F(RuntimeBrand, FolderWithoutAParentLeavesTheDefault)
{
    for (const wchar_t* const folder : {L"", L"\\", L"C:", L"C:\\", L"bin", L"\\bin", L"///"})
        EXPECT_EQ(runtimeBrandFor(folder), "Lumacraft");
}

TEST_F(RuntimeBrand, FolderInADrivesRootDoesNotUseTheCurrentFolder)
{
    writeBytes(scratch / L"global.cfg", "CompanyBrandMode=1\n");
    const std::filesystem::path previous = std::filesystem::current_path();
    std::filesystem::current_path(scratch.path());
    EXPECT_EQ(runtimeBrandFor(std::filesystem::current_path().root_name().native() + L"\\bin"),
              "Lumacraft");
    std::filesystem::current_path(previous);
}

TEST_F(RuntimeBrand, IsThatOfTheProgramsFolderAndConstant)
{
    EXPECT_EQ(fs::runtimeBrandName(), runtimeBrandFor(sys::moduleFolder()));
    EXPECT_EQ(&fs::runtimeBrandName(), &fs::runtimeBrandName());
}
