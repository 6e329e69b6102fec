#pragma once

// Parts of a text, found by a mark in it. Pure functions; any thread.

#include <cstddef>
#include <string_view>

namespace uninstall {

// What follows the last mark; the whole text without one.
inline std::string_view afterLast(std::string_view text, std::string_view mark)
{
    const std::size_t found = text.rfind(mark);
    return found == std::string_view::npos ? text : text.substr(found + mark.size());
}

// What precedes the first mark; the whole text without one.
inline std::string_view beforeFirst(std::string_view text, std::string_view mark)
{
    return text.substr(0, text.find(mark));
}

} // namespace uninstall
