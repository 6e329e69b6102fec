// Test programs without permission to change the user's settings.

#include "tests/windows/support/child_process.h"
#include "tests/windows/support/scoped_variable.h"
#include "tests/windows/support/settings_guard.h"

#include <gtest/gtest.h>

using namespace windows_tests;

namespace {

constexpr const wchar_t* suiteKey = L"Software\\Corvane";

// A value in the key that tests clear.
class RegistryMark
{
public:
    RegistryMark() { RegSetKeyValueW(HKEY_CURRENT_USER, suiteKey, name, REG_SZ, L"x", 4); }
    ~RegistryMark() { RegDeleteKeyValueW(HKEY_CURRENT_USER, suiteKey, name); }
    bool isThere() const
    {
        return RegGetValueW(HKEY_CURRENT_USER, suiteKey, name, RRF_RT_REG_SZ, nullptr, nullptr,
                            nullptr) == ERROR_SUCCESS;
    }

private:
    static constexpr const wchar_t* name = L"SettingsGuardTest";
};

using Arguments = std::vector<std::wstring>;

void expectRefused(const std::wstring& program, const Arguments& arguments)
{
    ChildOptions options;
    options.captureOutput = true;
    options.captureErrors = true;
    ChildProcess test(program, arguments, options);
    EXPECT_EQ(test.waitForExit(), static_cast<DWORD>(refusedExitCode));
    const std::string output = test.output();
    EXPECT_EQ(output.rfind("Not run: ", 0), 0u) << output;
    EXPECT_NE(output.find("TESSERA_TESTS_MAY_CHANGE_SETTINGS=1"), std::string::npos) << output;
    EXPECT_NE(output.find("HKCU\\Software\\Corvane"), std::string::npos) << output;
}

// This program with one test, and the Qt tests with one class.
const std::wstring googleTest = siblingProgram(L"windows_settings_guard");
const Arguments onlyAllowed = {L"--gtest_filter=SettingsGuard.AllowedProgramRuns"};
const std::wstring qtTest = siblingProgram(L"qt_tests");
const Arguments listFunctions = {L"TranslatorsTest", L"-functions"};

TEST(SettingsGuard, AllowedProgramRuns)
{
    SUCCEED();
}

TEST(SettingsGuard, ProgramsRunWithTheVariable)
{
    EXPECT_EQ(ChildProcess(googleTest, onlyAllowed).waitForExit(), 0u);
    EXPECT_EQ(ChildProcess(qtTest, listFunctions).waitForExit(), 0u);
}

TEST(SettingsGuard, WithoutTheVariableProgramsRefuseAndChangeNothing)
{
    const ScopedVariable variable(settingsVariable, nullptr);
    const RegistryMark mark;
    ASSERT_TRUE(mark.isThere());
    expectRefused(googleTest, onlyAllowed);
    expectRefused(qtTest, {L"TranslatorsTest", L"-silent"});
    EXPECT_TRUE(mark.isThere());
}

TEST(SettingsGuard, OnlyOneAllows)
{
    for (const wchar_t* value : {L"0", L"yes", L"11", L"1 ", L"100000000"}) {
        const ScopedVariable variable(settingsVariable, value);
        expectRefused(googleTest, onlyAllowed);
    }
}

} // namespace
