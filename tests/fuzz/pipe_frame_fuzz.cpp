// Any bytes from the pipe: reads them as request and as answer, and writes the text into a new
// frame. Bytes 1 and 2 are also the length of one more text to write, so that small inputs reach
// the largest frames.

#include "tests/fuzz/fuzz_support.h"
#include "ui/common/sys/ipc_commands.h"
#include "ui/common/sys/pipe_frame.h"

#include <algorithm>
#include <array>

namespace {

using fuzz::require;

// The channel's buffers are of exactly this size.
std::array<std::uint8_t, sys::largestFrame> buffer;

// Each byte counts as a signed number.
std::uint32_t receivedPid(std::uint32_t pid)
{
    std::int64_t sum = 0;
    for (unsigned i = 0; i < 4; ++i) {
        const std::int64_t byte = pid >> (8 * i) & 0xffU;
        sum += (byte < 128 ? byte : byte - 256) * (std::int64_t{1} << (8 * i));
    }
    return static_cast<std::uint32_t>(sum);
}

void checkRoundTrip(std::uint32_t pid, std::string_view text)
{
    const std::uint8_t first = buffer[0];
    const std::size_t size = sys::writeFrame(buffer.data(), pid, text);
    require((size == 0) == (text.size() > 65526), "only a text that is too long is refused");
    if (size == 0) {
        require(buffer[0] == first, "a refused text leaves the buffer alone");
        return;
    }
    require(size == text.size() + 9, "header and text make the frame");
    require(buffer[0] == 1 && buffer[1] == 0 && buffer[2] == 0, "type and reserved bytes");
    require(std::size_t{buffer[3]} * 256 + buffer[4] == size, "the length is big-endian");

    const auto request = sys::readRequest(buffer.data(), size);
    require(request && request->text == text, "the text arrives");
    require(request->pid == receivedPid(pid), "the process id arrives as receivers read it");
    const auto answer = sys::readAnswer(buffer.data(), size);
    require(answer.has_value() == !text.empty(), "an empty text is no answer");
    require(!answer || *answer == text, "the answer arrives");
}

std::uint32_t plainPid(const std::uint8_t* frame)
{
    return std::uint32_t{frame[5]} << 24U | std::uint32_t{frame[6]} << 16U |
           std::uint32_t{frame[7]} << 8U | std::uint32_t{frame[8]};
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // A block of exactly this size lets the sanitizer report a read past its end.
    const std::vector<std::uint8_t> frame(data, data + size);
    const auto request = sys::readRequest(frame.data(), frame.size());
    const auto answer = sys::readAnswer(frame.data(), frame.size());
    require(request.has_value() == (size >= 9), "a request has a header");
    require(answer.has_value() == (size >= 10), "an answer has a header and a text");
    if (!request)
        return 0;

    const std::string text = fuzz::textOf(data + 9, size - 9);
    require(request->text == text, "the text is all that follows the header");
    require(request->pid == receivedPid(plainPid(data)), "each byte of the id counts as signed");
    require(!answer || *answer == text, "answers are read like requests");
    checkRoundTrip(plainPid(data), text);
    checkRoundTrip(plainPid(data), std::string(std::size_t{data[1]} * 256 + data[2], 'x'));
    return 0;
}
