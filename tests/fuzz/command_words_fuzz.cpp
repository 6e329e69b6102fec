// Any message between copies: compares the plan for it with a plain second implementation, and
// checks how a sender joins its arguments and reads answers.

#include "tests/fuzz/fuzz_support.h"
#include "ui/common/sys/ipc_commands.h"

namespace {

using fuzz::contains;
using fuzz::require;

// Latin-1, as the window reads bytes.
std::u16string wide(std::string_view text)
{
    std::u16string result(text.size(), u'\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        result[i] = static_cast<std::uint8_t>(text[i]);
    return result;
}

std::string without(std::string_view text, std::string_view word)
{
    std::string kept;
    while (!text.empty()) {
        if (fuzz::startsWith(text, word)) {
            text.remove_prefix(word.size());
        } else {
            kept += text.front();
            text.remove_prefix(1);
        }
    }
    return kept;
}

void checkPlan(const std::string& message)
{
    const bool shows = contains(message, "/show");
    const bool minimizes = shows && contains(message, "/minimized");
    const bool asksHandle = contains(message, "/gethwnd");

    const sys::MessagePlan plan = sys::planForMessage(wide(message));
    require((plan.windowAction == sys::WindowAction::minimize) == minimizes, "both words minimise");
    require((plan.windowAction == sys::WindowAction::restore) == (shows && !minimizes),
            "the one word restores");
    require(sys::bringsWindowUp(message) == (shows && !minimizes), "the sender expects the same");

    require((plan.answer == sys::AnswerSource::none) == minimizes, "minimising answers nothing");
    require((plan.answer == sys::AnswerSource::windowHandle) == (asksHandle && !minimizes),
            "the handle is answered when asked for");
    const bool goesToHook = plan.answer == sys::AnswerSource::hook;
    const std::string rest = without(without(without(message, "/show"), "/minimized"), "/gethwnd");
    require(plan.rest == (goesToHook ? wide(rest) : std::u16string()),
            "the hook gets the message without command words");
}

void checkArguments(const std::string& text)
{
    const std::vector<std::string> arguments = fuzz::fieldsOf(text);
    std::string expected;
    for (const std::string& argument : arguments)
        expected += (&argument == &arguments.front() ? "" : " ") + argument;
    require(sys::joinArguments(arguments) == expected, "arguments are joined by one space");
}

void checkHandle(const std::uint8_t* data, std::size_t size)
{
    std::uint64_t handle = 0;
    for (std::size_t i = 0; i < size && i < 8; ++i)
        handle = handle << 8U | data[i];
    char expected[12];
    std::snprintf(expected, sizeof expected, "%d", static_cast<std::int32_t>(handle & 0xffffffffU));
    require(sys::handleText(handle) == expected, "a handle is printed as %d");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = fuzz::textOf(data, size);
    checkPlan(text);
    // A command word next to anything still counts.
    checkPlan(text + sys::showMessage());
    checkArguments(text);
    checkHandle(data, size);
    require(sys::answerRevives(text) == contains(text, "revive"), "the answer's word is found");
    return 0;
}
