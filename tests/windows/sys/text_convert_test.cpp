#include "tests/support/import_slot.h"
#include "tests/support/recorded_log.h"
#include "tests/support/text_pairs.h"
#include "ui/common/sys/text_convert.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include <windows.h>

namespace {

decltype(&MultiByteToWideChar) convert = nullptr;
std::set<DWORD> flagsUsed;

int WINAPI recordFlags(UINT codePage, DWORD flags, LPCCH text, int size, LPWSTR wide, int wideSize)
{
    flagsUsed.insert(flags);
    return convert(codePage, flags, text, size, wide, wideSize);
}

} // namespace

TEST(TextConvert, ConvertsUtf8BothWaysWithoutALogLine)
{
    const testing_support::RecordedLog log;
    for (const testing_support::TextPair& pair : testing_support::textPairs) {
        EXPECT_EQ(sys::fromUtf8(pair.utf8), pair.wide);
        EXPECT_EQ(sys::toUtf8(pair.wide), pair.utf8);
    }
    EXPECT_TRUE(log.records().empty());
}

TEST(TextConvert, InvalidUtf8GivesAnEmptyText)
{
    const std::string invalid[] = {
        "abc\xFF",          // never a byte of UTF-8
        "\x80",             // continuation without a start
        "abc\xC3",          // cut at the end
        "\xC0\xAF",         // longer than needed
        "\xED\xA0\x80",     // half of a pair
        "\xF4\x90\x80\x80", // beyond the last code point
    };
    for (const std::string& text : invalid) {
        const testing_support::RecordedLog log;
        EXPECT_EQ(sys::fromUtf8(text), L"");
        ASSERT_EQ(log.records().size(), 1U);
        EXPECT_EQ(log.records()[0].level, Keelbase::levelDetail);
        EXPECT_EQ(log.records()[0].text.rfind("MultiByteToWideChar failed: 1113 (", 0), 0U);
    }
}

TEST(TextConvert, UnpairedSurrogateBecomesTheReplacementCharacter)
{
    EXPECT_EQ(sys::toUtf8(L"a\xD83D"
                          L"b"),
              "a\xEF\xBF\xBD"
              "b");
}

TEST(TextConvert, CodePagesAreChosenByTheCaller)
{
    EXPECT_EQ(sys::fromCodePage("\xC3\xA9", 65001), L"\u00E9");
    EXPECT_EQ(sys::fromCodePage("\xE9", 1252), L"\u00E9");
    EXPECT_EQ(sys::fromCodePage("\xE9", 1251), L"\u0439");
    EXPECT_EQ(sys::fromCodePage("\x82\xA0", 932), L"\u3042");
    EXPECT_EQ(sys::fromCodePage("", 1252), L"");
}

TEST(TextConvert, OnlyUtf8IsCheckedForInvalidSequences)
{
    const ReplacedImport watched("MultiByteToWideChar", &recordFlags);
    convert = watched.original();
    sys::fromCodePage("text", 1252);
    EXPECT_EQ(flagsUsed, std::set<DWORD>{0});
    flagsUsed.clear();
    sys::fromUtf8("text");
    EXPECT_EQ(flagsUsed, std::set<DWORD>{MB_ERR_INVALID_CHARS});
}

TEST(TextConvert, CodePageVariantAcceptsInvalidSequences)
{
    const std::wstring wide = sys::fromCodePage("abc\xFF"
                                                "d",
                                                65001);
    EXPECT_EQ(wide.substr(0, 3), L"abc");
    EXPECT_EQ(wide.back(), L'd');
}

TEST(TextConvert, UnknownCodePageGivesAnEmptyText)
{
    EXPECT_EQ(sys::fromCodePage("abc", 64999), L"");
}

TEST(TextConvert, NarrowTextsUseTheAnsiCodePage)
{
    EXPECT_EQ(sys::toNarrow(L""), "");
    EXPECT_EQ(sys::toNarrow(L"C:\\Program Files\\Corvane"), "C:\\Program Files\\Corvane");
    // Every ANSI code page has the ASCII letters.
    for (int code = 0x20; code < 0x7F; ++code) {
        const std::wstring wide(1, static_cast<wchar_t>(code));
        EXPECT_EQ(sys::fromCodePage(sys::toNarrow(wide), CP_ACP), wide);
    }
    const std::string letter = sys::toNarrow(L"\u00E9");
    if (GetACP() == 1252) {
        EXPECT_EQ(letter, "\xE9");
    } else if (GetACP() == 65001) {
        EXPECT_EQ(letter, "\xC3\xA9");
    }
}
