// Arbitrary bytes at the pipe: reads them as request and as answer, acts on the text as the first
// copy would, and checks what must hold for any input.

#include "ui/common/sys/ipc_commands.h"
#include "ui/common/sys/pipe_frame.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void checkPlan(std::string_view text)
{
    // As the window reads it: Latin-1.
    std::u16string message;
    for (const char byte : text)
        message += static_cast<char16_t>(static_cast<std::uint8_t>(byte));
    const sys::MessagePlan plan = sys::planForMessage(message);

    require(sys::bringsWindowUp(text) == (plan.windowAction == sys::WindowAction::restore));
    require(plan.rest.size() <= message.size());
    require(plan.rest.empty() || plan.answer == sys::AnswerSource::hook);
    if (plan.windowAction == sys::WindowAction::minimize)
        require(plan.answer == sys::AnswerSource::none);
}

void checkRoundTrip(std::uint32_t pid, std::string_view text)
{
    std::vector<std::uint8_t> buffer(sys::largestFrame);
    const std::size_t size = sys::writeFrame(buffer.data(), pid, text);
    require((size == 0) == (text.size() > sys::largestFrameText));
    if (size == 0)
        return;
    require(size == text.size() + sys::frameHeaderSize);
    require(std::size_t{buffer[3]} * 256 + buffer[4] == size);
    const auto read = sys::readRequest(buffer.data(), size);
    require(read && read->text == text);
    if (((buffer[6] | buffer[7] | buffer[8]) & 0x80) == 0)
        require(read->pid == pid);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // An own block of exactly this size, so that a read past its end is seen.
    const std::vector<std::uint8_t> frame(data, data + size);
    const auto request = sys::readRequest(frame.data(), frame.size());
    const auto answer = sys::readAnswer(frame.data(), frame.size());
    require(request.has_value() == (size >= 9));
    require(answer.has_value() == (size >= 10));
    if (!request)
        return 0;
    require(request->text.size() == size - 9);
    require(std::equal(request->text.begin(), request->text.end(), frame.begin() + 9,
                       [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; }));
    if (answer)
        require(*answer == request->text);
    checkPlan(request->text);
    checkRoundTrip(request->pid, request->text);
    return 0;
}
