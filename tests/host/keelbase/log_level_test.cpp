#include "support/keelbase/log_level.h"

#include <gtest/gtest.h>

using Keelbase::levelFromText;

TEST(LogLevel, IsADecimalNumber)
{
    EXPECT_EQ(levelFromText("0"), 0);
    EXPECT_EQ(levelFromText("3"), 3);
    EXPECT_EQ(levelFromText("7"), 7);
    EXPECT_EQ(levelFromText("007"), 7);
    EXPECT_EQ(levelFromText("2147483647"), 2147483647);
}

TEST(LogLevel, IsInformationForAnythingElse)
{
    EXPECT_EQ(levelFromText(nullptr), 6);
    for (const char* text : {"", "-1", "-", "+3", " 3", "3 ", "3x", "0x3", "all", "2147483648"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(levelFromText(text), 6);
    }
}
