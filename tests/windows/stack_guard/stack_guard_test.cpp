#include "tests/windows/support/child_process.h"

#include <gtest/gtest.h>

namespace {

std::optional<DWORD> exitCodeOfSmasher(const std::vector<std::wstring>& arguments)
{
    const windows_tests::ChildProcess smasher(windows_tests::siblingProgram(L"stack_smasher"),
                                              arguments);
    return smasher.waitForExit();
}

TEST(StackGuard, LetsFunctionsReturnThatStayInsideTheirArrays)
{
    EXPECT_EQ(exitCodeOfSmasher({L"8"}), 0u);
}

TEST(StackGuard, EndsAProgramThatWritesPastAnArray)
{
    EXPECT_EQ(exitCodeOfSmasher({L"24"}), static_cast<DWORD>(STATUS_STACK_BUFFER_OVERRUN));
}

TEST(StackGuard, DiffersAtEachStartAndBeginsWithAZeroByte)
{
    const DWORD first = exitCodeOfSmasher({}).value();
    const DWORD second = exitCodeOfSmasher({}).value();
    EXPECT_NE(first, second);
    EXPECT_EQ((first | second) & 0xFF, 0u);
}

} // namespace
