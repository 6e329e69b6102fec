#pragma once

// Conversions between byte strings and UTF-16. Any thread. A text that cannot be converted, or
// one of more than 2^31-1 units, yields the empty string.

#include <string>
#include <string_view>

namespace sys {

// UTF-8 to UTF-16. One invalid sequence makes the whole result empty.
std::wstring fromUtf8(std::string_view text);

// From a Windows code page; invalid bytes become the system's default character.
std::wstring fromCodePage(std::string_view text, unsigned codePage);

// UTF-16 to UTF-8; an unpaired surrogate becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

// UTF-16 to the platform's narrow encoding, that of path names.
std::string toNarrow(std::wstring_view text);

} // namespace sys
