#pragma once

#include <string>

namespace stats {

// The suite's own form encoding: the space and ! # $ % & ' ( ) * + , - . / : ; = ? @ [ ] { | }
// become "%" and two upper-case hexadecimal digits, every other byte stays. A deliberate oddity:
// quotes, control bytes and UTF-8 are not encoded.
std::string urlEncode(const std::string& text);

} // namespace stats
