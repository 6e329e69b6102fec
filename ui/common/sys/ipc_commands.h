#pragma once

// The words in the messages between copies, and what they ask of the receiving copy. Pure
// functions; any thread. All words are matched case-sensitively, anywhere in the text.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sys {

enum class WindowAction {
    none,
    restore,  // end the minimised state, activate, raise
    minimize, // minimise, activate
};

enum class AnswerSource {
    none,
    hook,         // what the program's own handler returns for the rest
    windowHandle, // handleText() of the window
};

struct MessagePlan
{
    WindowAction windowAction = WindowAction::none;
    AnswerSource answer = AnswerSource::none;
    // For AnswerSource::hook: the message without any command word; else empty.
    std::u16string rest;
};

MessagePlan planForMessage(std::u16string_view message);

// True for a message that brings the receiver's window up: "/show" without "/minimized".
bool bringsWindowUp(std::string_view message);

// True for an answer that tells a later copy to go on as the first one ("revive").
bool answerRevives(std::string_view answer);

// The message of a start without arguments.
std::string showMessage();

// The arguments with one space between neighbours.
std::string joinArguments(const std::vector<std::string>& arguments);

// The low 32 bits of a native window handle as a signed decimal number ("%d"). Window handles have
// no more significant bits.
std::string handleText(std::uint64_t handle);

} // namespace sys
