#include "tests/windows/support/scoped_variable.h"
#include "ui/common/sys/environment.h"

#include <gtest/gtest.h>

#include <string>

using windows_tests::ScopedVariable;

namespace {

constexpr const char* name = "TESSERA_TEST_VARIABLE";
constexpr const wchar_t* wideName = L"TESSERA_TEST_VARIABLE";

} // namespace

TEST(Environment, MissingVariableReadsAsEmpty)
{
    EXPECT_EQ(sys::environmentVariable(name), "");
    EXPECT_FALSE(sys::environmentSwitch(name));
}

TEST(Environment, ValueIsUtf8)
{
    const ScopedVariable variable(wideName, L"Gr\u00FC\u00DFe \u8A66");
    EXPECT_EQ(sys::environmentVariable(name), "Gr\xC3\xBC\xC3\x9F"
                                              "e \xE8\xA9\xA6");
}

TEST(Environment, SwitchIsOnForExactlyOne)
{
    const ScopedVariable variable(wideName, L"1");
    EXPECT_TRUE(sys::environmentSwitch(name));
}

TEST(Environment, SwitchIsOffForAnythingElse)
{
    for (const wchar_t* const value :
         {L"0", L"01", L"11", L"1 ", L" 1", L"true", L"yes", L"on", L"2", L"\uFF11"}) {
        const ScopedVariable variable(wideName, value);
        EXPECT_FALSE(sys::environmentSwitch(name)) << sys::environmentVariable(name);
    }
}

TEST(Environment, LongestReadableValueHas2047Characters)
{
    {
        const ScopedVariable variable(wideName, std::wstring(2047, L'x').c_str());
        EXPECT_EQ(sys::environmentVariable(name), std::string(2047, 'x'));
    }
    for (const std::size_t size : {2048U, 2049U, 30000U}) {
        const ScopedVariable variable(wideName, std::wstring(size, L'x').c_str());
        EXPECT_EQ(sys::environmentVariable(name), "") << size;
    }
}
