#include "ui/common/sys/pipe_frame.h"

#include <cstring>

namespace sys {

namespace {

constexpr std::uint8_t frameType = 1;

std::uint8_t byteOf(std::size_t number, unsigned shift)
{
    return static_cast<std::uint8_t>((number >> shift) & 0xff);
}

// A deliberate oddity: each byte counts as a signed number, so an id with a byte of 0x80 or more
// below the highest one comes out altered.
std::uint32_t signedByte(std::uint8_t byte)
{
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<std::int8_t>(byte)));
}

std::string_view textAfterHeader(const std::uint8_t* frame, std::size_t size)
{
    return {reinterpret_cast<const char*>(frame) + frameHeaderSize, size - frameHeaderSize};
}

} // namespace

std::size_t writeFrame(std::uint8_t* buffer, std::uint32_t pid, std::string_view text)
{
    if (text.size() > largestFrameText)
        return 0;
    const std::size_t total = frameHeaderSize + text.size();
    buffer[0] = frameType;
    buffer[1] = 0;
    buffer[2] = 0;
    buffer[3] = byteOf(total, 8);
    buffer[4] = byteOf(total, 0);
    buffer[5] = byteOf(pid, 24);
    buffer[6] = byteOf(pid, 16);
    buffer[7] = byteOf(pid, 8);
    buffer[8] = byteOf(pid, 0);
    if (!text.empty())
        std::memcpy(buffer + frameHeaderSize, text.data(), text.size());
    return total;
}

std::optional<FrameView> readRequest(const std::uint8_t* frame, std::size_t size)
{
    if (size < frameHeaderSize)
        return std::nullopt;
    const std::uint32_t pid = (signedByte(frame[5]) << 24) + (signedByte(frame[6]) << 16) +
                              (signedByte(frame[7]) << 8) + signedByte(frame[8]);
    return FrameView{pid, textAfterHeader(frame, size)};
}

std::optional<std::string_view> readAnswer(const std::uint8_t* frame, std::size_t size)
{
    if (size <= frameHeaderSize)
        return std::nullopt;
    return textAfterHeader(frame, size);
}

} // namespace sys
