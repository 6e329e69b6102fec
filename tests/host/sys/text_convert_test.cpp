#include "tests/support/text_pairs.h"
#include "ui/common/sys/text_convert.h"

#include <gtest/gtest.h>

#include <string>

TEST(TextConvert, ConvertsUtf8BothWays)
{
    for (const testing_support::TextPair& pair : testing_support::textPairs) {
        EXPECT_EQ(sys::fromUtf8(pair.utf8), pair.wide);
        EXPECT_EQ(sys::toUtf8(pair.wide), pair.utf8);
        EXPECT_EQ(sys::toNarrow(pair.wide), pair.utf8);
    }
}

TEST(TextConvert, InvalidTextBecomesEmpty)
{
    for (const char* text : {"abc\xFF", "\x80", "abc\xC3", "\xC0\xAF", "\xED\xA0\x80"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(sys::fromUtf8(text), L"");
    }
}

TEST(TextConvert, CodePagesAreChosenByTheCaller)
{
    EXPECT_EQ(sys::fromCodePage("\xE9", 1252), L"\u00E9");
    EXPECT_EQ(sys::fromCodePage("\xE9", 1251), L"\u0439");
    EXPECT_EQ(sys::fromCodePage("\x82\xA0", 932), L"\u3042");
    EXPECT_EQ(sys::fromCodePage("", 1252), L"");
    EXPECT_EQ(sys::fromCodePage("abc", 64999), L"");
}
