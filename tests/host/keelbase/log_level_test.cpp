#include "support/keelbase/log_level.h"
#include "tests/host/support/scoped_variable.h"

#include <gtest/gtest.h>

namespace {

int levelWith(const char* value)
{
    const host::ScopedVariable variable("KEELBASE_LOG_LEVEL", value);
    return Keelbase::levelFromEnvironment();
}

} // namespace

TEST(LogLevel, IsADecimalNumberOfTheEnvironment)
{
    EXPECT_EQ(levelWith("0"), 0);
    EXPECT_EQ(levelWith("3"), 3);
    EXPECT_EQ(levelWith("7"), 7);
    EXPECT_EQ(levelWith("007"), 7);
    EXPECT_EQ(levelWith("2147483647"), 2147483647);
}

TEST(LogLevel, IsThatOfInformationForAnythingElse)
{
    EXPECT_EQ(levelWith(nullptr), 6);
    for (const char* text : {"", "-1", "-", "+3", " 3", "3 ", "3x", "0x3", "all", "2147483648"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(levelWith(text), 6);
    }
}
