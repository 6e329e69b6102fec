#include "tests/windows/support/child_process.h"

#include <gtest/gtest.h>

namespace {

std::optional<DWORD> exitCodeAfterWriting(const wchar_t* length)
{
    const windows_tests::ChildProcess smasher(windows_tests::siblingProgram(L"stack_smasher"),
                                              {length});
    return smasher.waitForExit();
}

TEST(StackGuard, LetsFunctionsReturnThatStayInsideTheirArrays)
{
    EXPECT_EQ(exitCodeAfterWriting(L"8"), 0u);
}

TEST(StackGuard, EndsAProgramThatWritesPastAnArray)
{
    EXPECT_EQ(exitCodeAfterWriting(L"24"), static_cast<DWORD>(STATUS_STACK_BUFFER_OVERRUN));
}

} // namespace
