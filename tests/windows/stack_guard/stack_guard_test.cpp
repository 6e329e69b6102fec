#include "tests/windows/support/child_process.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::optional<DWORD> exitCodeAfterWriting(const wchar_t* length)
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring own = path;
    const windows_tests::ChildProcess smasher(
        own.substr(0, own.find_last_of(L'\\') + 1) + L"stack_smasher.exe", {length});
    return smasher.waitForExit();
}

TEST(StackGuard, LetsFunctionsReturnThatKeepToTheirArrays)
{
    EXPECT_EQ(exitCodeAfterWriting(L"8"), 0u);
}

TEST(StackGuard, EndsAProgramThatWroteOverItsStackBeforeTheFunctionReturns)
{
    EXPECT_EQ(exitCodeAfterWriting(L"24"), static_cast<DWORD>(STATUS_STACK_BUFFER_OVERRUN));
}

} // namespace
