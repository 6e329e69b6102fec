#include "tests/windows/support/child_process.h"

#include <gtest/gtest.h>

namespace {

constexpr DWORD libraryNotFound = 0xC06D007E;
constexpr DWORD functionNotFound = 0xC06D007F;

std::optional<DWORD> exitCodeOfCall(const std::vector<std::wstring>& arguments)
{
    const windows_tests::ChildProcess caller(windows_tests::siblingProgram(L"delayed_call"),
                                             arguments);
    return caller.waitForExit();
}

TEST(DelayLoad, FindsAFunctionByItsNameOrNumber)
{
    EXPECT_EQ(exitCodeOfCall({L"version.dll", L"GetFileVersionInfoSizeW"}), 0u);
    EXPECT_EQ(exitCodeOfCall({L"ws2_32.dll", L"#115"}), 0u); // WSAStartup
}

TEST(DelayLoad, EndsACallOfWhatIsMissingWithTheCodesThatDebuggersKnow)
{
    EXPECT_EQ(exitCodeOfCall({L"no_such_library.dll", L"Function"}), libraryNotFound);
    EXPECT_EQ(exitCodeOfCall({L"version.dll", L"NoSuchFunction"}), functionNotFound);
}

TEST(DelayLoad, LoadsNothingWithoutTheSystemsFolder)
{
    for (const wchar_t* length : {L"0", L"260", L"300"})
        EXPECT_EQ(exitCodeOfCall({L"version.dll", L"GetFileVersionInfoSizeW", length}),
                  libraryNotFound);
}

} // namespace
