#include "tests/host/support/scoped_variable.h"
#include "ui/common/sys/environment.h"

#include <gtest/gtest.h>

using host::ScopedVariable;

namespace sys {

namespace {

constexpr const char* name = "TESSERA_TEST_VARIABLE";

} // namespace

TEST(Environment, MissingVariableReadsAsEmpty)
{
    const ScopedVariable variable(name, nullptr);
    EXPECT_EQ(environmentVariable(name), "");
    EXPECT_FALSE(environmentSwitch(name));
}

TEST(Environment, SwitchIsOnForTheTextOneOnly)
{
    for (const char* value : {"", "0", "2", "11", "01", " 1", "1 ", "true", "yes"}) {
        SCOPED_TRACE(value);
        const ScopedVariable variable(name, value);
        EXPECT_FALSE(environmentSwitch(name));
    }
    const ScopedVariable variable(name, "1");
    EXPECT_TRUE(environmentSwitch(name));
}

TEST(Environment, LongestReadableValueHas2047Characters)
{
    const std::string longest(2047, 'x');
    {
        const ScopedVariable variable(name, longest.c_str());
        EXPECT_EQ(environmentVariable(name), longest);
    }
    const ScopedVariable variable(name, (longest + "x").c_str());
    EXPECT_EQ(environmentVariable(name), "");
}

} // namespace sys
