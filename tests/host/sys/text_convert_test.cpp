#include "ui/common/sys/text_convert.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Pair
{
    std::string utf8;
    std::wstring wide;
};

const Pair pairs[] = {
    {"", L""},
    {"a", L"a"},
    {"Gr\xC3\xBC\xC3\x9F", L"Gr\u00FC\u00DF"},
    {"\xE8\xA9\xA6\xE9\xA8\x93", L"\u8A66\u9A13"},
    {"\xF0\x9F\x98\x80", L"\U0001F600"},
    {std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
    {std::string(100000, 'x'), std::wstring(100000, L'x')},
};

} // namespace

TEST(TextConvert, ConvertsUtf8BothWays)
{
    for (const Pair& pair : pairs) {
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
