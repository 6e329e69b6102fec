#include "ui/common/config/config_text.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <random>

namespace fs {

namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

ConfigValues parsed(std::string_view text)
{
    ConfigValues values;
    parseConfigText(text, values);
    return values;
}

std::string numberedKey(int number)
{
    std::string digits = std::to_string(number);
    return "key" + std::string(9 - digits.size(), '0') + digits;
}

// Far more than the parser needs, even under a sanitizer.
constexpr std::chrono::seconds generous{60};

} // namespace

TEST(ConfigText, FollowsTheReadingRules)
{
    struct Case
    {
        const char* what;
        std::string text;
        ConfigValues expected;
    };
    const Case cases[] = {
        {"nothing", "", {}},
        {"CR LF lines, further '=' in the value", "a=1\r\nb=x=y\r\n", {{"a", "1"}, {"b", "x=y"}}},
        {"blanks are kept", " key = v \n", {{" key ", " v "}}},
        {"tabs are kept", "\tk\t=\tv\t\n", {{"\tk\t", "\tv\t"}}},
        {"the first of a repeated key wins", "k=1\nk=2\n", {{"k", "1"}}},
        {"an empty first value wins too", "k=\nk=2\n", {{"k", ""}}},
        {"repeats apart from each other", "b=1\na=1\nb=2\na=2\n", {{"a", "1"}, {"b", "1"}}},
        {"lines without '=' are skipped",
         "\n\n# comment\n; c\n[section]\na=1\nword\n",
         {{"a", "1"}}},
        {"no final line feed", "a=1\nb=2", {{"a", "1"}, {"b", "2"}}},
        {"an empty key", "=v\n", {{"", "v"}}},
        {"an empty value", "k=\n", {{"k", ""}}},
        {"a single '='", "=", {{"", ""}}},
        {"quotes are bytes like others", "k=\"a b\"\n'q'=1\n", {{"k", "\"a b\""}, {"'q'", "1"}}},
        {"no escapes", "k=a\\nb\\=\n", {{"k", "a\\nb\\="}}},
        {"a stray CR disappears", "k=a\rb\r\rc\r\n\rx\r=\r1", {{"k", "abc"}, {"x", "1"}}},
        {"CR alone ends no line", "a=1\rb=2\r", {{"a", "1b=2"}}},
        {"nothing but CR", "\r\r\r", {}},
        {"nothing but NUL", std::string(1000, '\0'), {}},
        {"trailing NULs are cut", "a=1\n\0\0\0"s, {{"a", "1"}}},
        {"trailing NULs behind a value", "a=1\0\0"s, {{"a", "1"}}},
        {"a NUL inside is content", "a=1\0"s + "2\nb\0=3\n"s, {{"a", "1\0002"s}, {"b\0"s, "3"}}},
        {"a NUL before a final CR is content", "a=1\0\r"s, {{"a", "1\0"s}}},
        {"a NUL before a final line feed is content", "a=1\0\n"s, {{"a", "1\0"s}}},
        {"bytes beyond ASCII", "\xc3\xa9=\xff\xfe\n", {{"\xc3\xa9", "\xff\xfe"}}},
        {"a byte-order mark belongs to the key", "\xef\xbb\xbfk=1\n", {{"\xef\xbb\xbfk", "1"}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(parsed(c.text), c.expected);
    }
}

TEST(ConfigText, AddsToExistingValuesAndKeepsThem)
{
    ConfigValues values{{"b", "old"}, {"empty", ""}};
    parseConfigText("a=1\nb=2\nc=3\nempty=4\n", values);
    EXPECT_EQ(values, (ConfigValues{{"a", "1"}, {"b", "old"}, {"c", "3"}, {"empty", ""}}));
}

TEST(ConfigText, OrdersKeysByUnsignedBytes)
{
    EXPECT_THAT(parsed("\x80=4\nb=3\nB=1\na=2\n"),
                ElementsAre(Pair("B", "1"), Pair("a", "2"), Pair("b", "3"), Pair("\x80", "4")));
}

TEST(ConfigText, FirstEntryOfARepeatedKeyWinsInALargeShuffledFile)
{
    std::mt19937 random(20260101);
    std::vector<int> numbers;
    for (int number = 0; number < 20000; ++number)
        numbers.insert(numbers.end(), 3, number);
    std::shuffle(numbers.begin(), numbers.end(), random);

    std::string text;
    ConfigValues expected;
    for (std::size_t line = 0; line < numbers.size(); ++line) {
        const std::string key = numberedKey(numbers[line]);
        text += key + "=" + std::to_string(line) + "\n";
        expected.emplace(key, std::to_string(line));
    }
    EXPECT_EQ(parsed(text), expected);
}

TEST(ConfigText, FirstEntryWinsAcrossAVeryLongFile)
{
    constexpr int keys = 150000;
    std::string text;
    for (int number = keys; number-- > 0;)
        text += numberedKey(number) + "=first\n";
    for (int number = 0; number < keys; ++number)
        text += numberedKey(number) + "=second\n";

    const ConfigValues values = parsed(text);
    ASSERT_EQ(values.size(), static_cast<std::size_t>(keys));
    for (const auto& [key, value] : values)
        ASSERT_EQ(value, "first") << key;
}

TEST(ConfigText, ReadsEightMegabytesInReasonableTime)
{
    constexpr std::size_t size = 8U << 20;
    struct Case
    {
        const char* what;
        std::string line;
        std::size_t keys;
    };
    const Case cases[] = {
        {"NULs only", std::string(1, '\0'), 0},  {"line feeds only", "\n", 0},
        {"carriage returns only", "\r", 0},      {"one line", "x", 0},
        {"one key over and over", "k=v\r\n", 1}, {"two keys in turn", "b=1\na=2\n", 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::string text = c.line;
        while (text.size() < size)
            text += std::string(text);
        text.resize(size);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(parsed(text).size(), c.keys);
        EXPECT_LT(std::chrono::steady_clock::now() - start, generous);
    }
}

TEST(ConfigText, WritesSortedLinesWithoutEmptyValues)
{
    EXPECT_EQ(serialiseConfig({}), "");
    EXPECT_EQ(serialiseConfig({{"gone", ""}}), "");
    EXPECT_EQ(serialiseConfig({{"b", "2"}, {"a", "x=y"}, {"gone", ""}, {" c ", " 3 "}, {"", "e"}}),
              "=e\n c = 3 \na=x=y\nb=2\n");
}

TEST(ConfigText, ReadsBackWhatItWrote)
{
    const ConfigValues values{{"", "e"}, {" blank ", " v "}, {"\xc3\xbc", "\xff"}, {"q", "\"=\""}};
    EXPECT_EQ(parsed(serialiseConfig(values)), values);
}

TEST(ConfigChanges, CollectsCurrentValuesAndMissingKeys)
{
    const ConfigValues values{{"a", "1"}, {"b", ""}, {"c", "3"}};
    const ConfigChanges changes = collectChanges(values, {"a", "b", "missing"});
    EXPECT_THAT(changes.toWrite, ElementsAre(Pair("a", "1"), Pair("b", "")));
    EXPECT_THAT(changes.toDrop, ElementsAre("missing"));
}

TEST(ConfigChanges, CollectsNothingWithoutChangedKeys)
{
    const ConfigChanges changes = collectChanges({{"a", "1"}}, {});
    EXPECT_THAT(changes.toWrite, IsEmpty());
    EXPECT_THAT(changes.toDrop, IsEmpty());
}

TEST(ConfigChanges, ReplaceInsertAndErase)
{
    ConfigValues values{{"keep", "k"}, {"replace", "old"}, {"drop", "d"}};
    applyChanges({{{"replace", "new"}, {"insert", "i"}, {"empty", ""}}, {"drop", "missing"}},
                 values);
    EXPECT_EQ(values,
              (ConfigValues{{"empty", ""}, {"insert", "i"}, {"keep", "k"}, {"replace", "new"}}));
}

} // namespace fs
