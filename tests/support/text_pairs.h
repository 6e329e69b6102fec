#pragma once

// Texts in UTF-8 and in the platform's wide characters.

#include <string>

namespace testing_support {

struct TextPair
{
    std::string utf8;
    std::wstring wide;
};

inline const TextPair textPairs[] = {
    {"", L""},
    {"a", L"a"},
    {"Gr\xC3\xBC\xC3\x9F", L"Gr\u00FC\u00DF"},
    {"\xE8\xA9\xA6\xE9\xA8\x93", L"\u8A66\u9A13"},
    {"\xF0\x9F\x98\x80", L"\U0001F600"},
    {std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
    {std::string(100000, 'x'), std::wstring(100000, L'x')},
};

} // namespace testing_support
