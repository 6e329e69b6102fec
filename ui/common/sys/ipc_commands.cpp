#include "ui/common/sys/ipc_commands.h"

namespace sys {

namespace {

constexpr std::string_view show = "/show";
constexpr std::string_view minimized = "/minimized";
constexpr std::string_view windowHandle = "/gethwnd";
constexpr std::string_view revive = "revive";

bool contains(std::string_view text, std::string_view word)
{
    return text.find(word) != std::string_view::npos;
}

std::u16string wide(std::string_view word)
{
    return {word.begin(), word.end()};
}

bool contains(std::u16string_view text, std::string_view word)
{
    return text.find(wide(word)) != std::u16string_view::npos;
}

// One pass from left to right: a word that only a removal forms stays.
void removeAll(std::u16string& text, std::string_view word)
{
    const std::u16string wanted = wide(word);
    std::size_t position = 0;
    while ((position = text.find(wanted, position)) != std::u16string::npos)
        text.erase(position, wanted.size());
}

} // namespace

MessagePlan planForMessage(std::u16string_view message)
{
    MessagePlan plan;
    if (contains(message, show)) {
        if (contains(message, minimized)) {
            plan.windowAction = WindowAction::minimize;
            return plan;
        }
        plan.windowAction = WindowAction::restore;
    }
    if (contains(message, windowHandle)) {
        plan.answer = AnswerSource::windowHandle;
        return plan;
    }
    plan.answer = AnswerSource::hook;
    plan.rest = message;
    for (const std::string_view word : {show, minimized, windowHandle})
        removeAll(plan.rest, word);
    return plan;
}

bool bringsWindowUp(std::string_view message)
{
    return contains(message, show) && !contains(message, minimized);
}

bool answerRevives(std::string_view answer)
{
    return contains(answer, revive);
}

std::string showMessage()
{
    return std::string(show);
}

std::string joinArguments(const std::vector<std::string>& arguments)
{
    std::string text;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (i > 0)
            text += ' ';
        text += arguments[i];
    }
    return text;
}

std::string handleText(std::uint64_t handle)
{
    return std::to_string(static_cast<std::int32_t>(static_cast<std::uint32_t>(handle)));
}

} // namespace sys
