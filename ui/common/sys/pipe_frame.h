#pragma once

// The frames of the message pipe: one frame is one pipe message. docs/messages.md has the table.
// Pure functions; any thread.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace sys {

constexpr std::size_t frameHeaderSize = 9;
// The length field has 16 bits.
constexpr std::size_t largestFrame = 65535;
constexpr std::size_t largestFrameText = largestFrame - frameHeaderSize;

// A received text; the view points into the frame's buffer.
struct FrameView
{
    std::uint32_t pid;
    std::string_view text;
};

// Writes the frame that carries `text` from process `pid` into `buffer`, which must hold
// largestFrame bytes. Returns the frame's size, or 0, with the buffer unchanged, when the text has
// more than largestFrameText bytes.
std::size_t writeFrame(std::uint8_t* buffer, std::uint32_t pid, std::string_view text);

// Reads a request of `size` bytes; nothing when it is shorter than a header. Type, reserved bytes
// and the length field are ignored: the text is all that follows the header.
std::optional<FrameView> readRequest(const std::uint8_t* frame, std::size_t size);

// Reads an answer of `size` bytes; nothing when it holds no text.
std::optional<std::string_view> readAnswer(const std::uint8_t* frame, std::size_t size);

} // namespace sys
