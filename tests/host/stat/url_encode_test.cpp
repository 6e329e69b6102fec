#include "ui/common/stat/url_encode.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using stats::urlEncode;

namespace {

const std::map<char, std::string> encodedBytes = {
    {' ', "%20"}, {'!', "%21"},  {'#', "%23"}, {'$', "%24"}, {'%', "%25"},
    {'&', "%26"}, {'\'', "%27"}, {'(', "%28"}, {')', "%29"}, {'*', "%2A"},
    {'+', "%2B"}, {',', "%2C"},  {'-', "%2D"}, {'.', "%2E"}, {'/', "%2F"},
    {':', "%3A"}, {';', "%3B"},  {'=', "%3D"}, {'?', "%3F"}, {'@', "%40"},
    {'[', "%5B"}, {']', "%5D"},  {'{', "%7B"}, {'|', "%7C"}, {'}', "%7D"}};

} // namespace

TEST(UrlEncode, EncodesExactlyTheListedBytes)
{
    ASSERT_EQ(encodedBytes.size(), 25U);
    for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        const auto found = encodedBytes.find(byte);
        const std::string expected =
            found != encodedBytes.end() ? found->second : std::string(1, byte);
        EXPECT_EQ(urlEncode(std::string(1, byte)), expected) << "byte " << value;
    }
}

TEST(UrlEncode, LeavesTheEmptyTextEmpty)
{
    EXPECT_EQ(urlEncode(""), "");
}

TEST(UrlEncode, EncodesEachByteOfALongText)
{
    std::string text;
    std::string expected;
    for (int round = 0; round < 1000; ++round) {
        text += "a{\"\xC3\xA4\":, }~";
        expected += "a%7B\"\xC3\xA4\"%3A%2C%20%7D~";
    }
    EXPECT_EQ(urlEncode(text), expected);
}

TEST(UrlEncode, KeepsTheQuotesOfAJsonBody)
{
    EXPECT_EQ(urlEncode(R"({"info":"a, b"})"), "%7B\"info\"%3A\"a%2C%20b\"%7D");
}

TEST(UrlEncode, AcceptsNulBytesAndTextsOfEncodedBytesOnly)
{
    EXPECT_EQ(urlEncode(std::string("{\0}", 3)), std::string("%7B\0%7D", 7));
    EXPECT_EQ(urlEncode("{{{{"), "%7B%7B%7B%7B");
}
