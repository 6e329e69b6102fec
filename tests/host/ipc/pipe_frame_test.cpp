#include "ui/common/sys/pipe_frame.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes frameOf(std::uint32_t pid, const std::string& text)
{
    Bytes buffer(sys::largestFrame, 0xee);
    buffer.resize(sys::writeFrame(buffer.data(), pid, text));
    return buffer;
}

std::string everyByte()
{
    std::string text;
    for (int byte = 0; byte < 256; ++byte)
        text += static_cast<char>(byte);
    return text;
}

TEST(PipeFrame, HasTypeReservedLengthAndIdInBigEndianBeforeTheText)
{
    EXPECT_EQ(frameOf(0x01020304, "hi"), (Bytes{1, 0, 0, 0, 11, 1, 2, 3, 4, 'h', 'i'}));
}

TEST(PipeFrame, WritesEveryByteOfTheIdUnsigned)
{
    const Bytes frame = frameOf(0xfedc8081, "");
    EXPECT_EQ(Bytes(frame.begin() + 5, frame.end()), (Bytes{0xfe, 0xdc, 0x80, 0x81}));
}

TEST(PipeFrame, LengthFieldCountsHeaderAndText)
{
    struct Case
    {
        std::size_t textSize;
        std::uint8_t high;
        std::uint8_t low;
    };
    for (const Case& c : {Case{0, 0, 9}, Case{1, 0, 10}, Case{246, 0, 255}, Case{247, 1, 0},
                          Case{32759, 0x80, 0}, Case{65525, 0xff, 0xfe}, Case{65526, 0xff, 0xff}}) {
        SCOPED_TRACE(c.textSize);
        const Bytes frame = frameOf(1, std::string(c.textSize, 'x'));
        ASSERT_EQ(frame.size(), c.textSize + 9);
        EXPECT_EQ(frame[3], c.high);
        EXPECT_EQ(frame[4], c.low);
    }
}

TEST(PipeFrame, TextThatDoesNotFitIsNotWritten)
{
    for (const std::size_t size : {std::size_t{65527}, std::size_t{65535}, std::size_t{200000}}) {
        SCOPED_TRACE(size);
        Bytes buffer(sys::largestFrame, 0xee);
        EXPECT_EQ(sys::writeFrame(buffer.data(), 1, std::string(size, 'x')), 0u);
        EXPECT_EQ(buffer, Bytes(sys::largestFrame, 0xee));
    }
}

TEST(PipeFrame, LargestTextFillsTheFrameToItsLastByte)
{
    std::string text(65526, 'a');
    text.back() = 'z';
    const Bytes frame = frameOf(1, text);
    EXPECT_EQ(frame.size(), 65535u);
    EXPECT_EQ(frame.back(), 'z');
}

TEST(PipeFrameRequest, IdIsReadByteByByteAsSignedNumbers)
{
    struct Case
    {
        std::uint32_t sent;
        std::uint32_t read;
    };
    const std::array<Case, 12> cases = {{
        {0, 0},
        {1, 1},
        {127, 127},
        {128, 4294967168u},
        {255, 4294967295u},
        {256, 256},
        {4660, 4660}, // 12 34
        {4736, 4480}, // 12 80
        {4740, 4484}, // 12 84
        {0x00800000, 0xff800000u},
        {0x80000000u, 0x80000000u},
        {0xffffffffu, 0xfefefeffu},
    }};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.sent);
        const Bytes frame = frameOf(c.sent, "");
        const auto request = sys::readRequest(frame.data(), frame.size());
        ASSERT_TRUE(request);
        EXPECT_EQ(request->pid, c.read);
    }
}

TEST(PipeFrameRequest, NeedsAWholeHeader)
{
    const Bytes frame = frameOf(7, "text");
    for (std::size_t size = 0; size < 9; ++size)
        EXPECT_FALSE(sys::readRequest(frame.data(), size)) << size;
    const auto bare = sys::readRequest(frame.data(), 9);
    ASSERT_TRUE(bare);
    EXPECT_EQ(bare->text, "");
    EXPECT_EQ(sys::readRequest(frame.data(), 10)->text, "t");
}

TEST(PipeFrameRequest, IgnoresTheLengthInTheHeader)
{
    Bytes frame = frameOf(7, "text");
    for (std::size_t i = 0; i < 5; ++i)
        frame[i] = 0xff;
    const auto request = sys::readRequest(frame.data(), frame.size());
    ASSERT_TRUE(request);
    EXPECT_EQ(request->text, "text");
    EXPECT_EQ(request->pid, 7u);
}

TEST(PipeFrameRequest, TextKeepsEveryByte)
{
    const std::string text = everyByte();
    const Bytes frame = frameOf(7, text);
    EXPECT_EQ(sys::readRequest(frame.data(), frame.size())->text, text);
}

TEST(PipeFrameAnswer, NeedsAtLeastOneByteOfText)
{
    const Bytes frame = frameOf(7, "yes");
    for (std::size_t size = 0; size <= 9; ++size)
        EXPECT_FALSE(sys::readAnswer(frame.data(), size)) << size;
    EXPECT_EQ(sys::readAnswer(frame.data(), 10), std::string_view("y"));
    EXPECT_EQ(sys::readAnswer(frame.data(), 12), std::string_view("yes"));
}

TEST(PipeFrameAnswer, TextKeepsEveryByteUpToTheLargestFrame)
{
    std::string text = everyByte();
    while (text.size() < sys::largestFrameText)
        text += everyByte();
    text.resize(sys::largestFrameText);
    const Bytes frame = frameOf(7, text);
    EXPECT_EQ(sys::readAnswer(frame.data(), frame.size()), text);
}

} // namespace
