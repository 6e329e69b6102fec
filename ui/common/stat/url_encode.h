#pragma once

#include <string>

namespace stats {

// The suite's own form encoding: the space and ! # $ % & ' ( ) * + , - . / : ; = ? @ [ ] { | }
// become "%" and two upper-case hexadecimal digits, every other byte stays. Quotes, control bytes
// and UTF-8 pass as they are; the statistics service has always received them so.
std::string urlEncode(const std::string& text);

} // namespace stats
