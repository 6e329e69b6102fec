#pragma once

// Parses one line of a ".cfg" file, "global.cfg" included. Pure; any thread.

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace fs {

// Parts of the text that the line was taken from.
struct ConfigLine
{
    std::string_view key;
    std::string_view value; // what follows the first "="
};

// Takes the first line, with its line feed, off the text, which must not be empty. Returns false
// for a line without "=", and leaves `line` alone then.
inline bool takeConfigLine(std::string_view& text, ConfigLine& line)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view whole = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));

    const std::size_t equals = whole.find('=');
    if (equals == std::string_view::npos)
        return false;
    line = {whole.substr(0, equals), whole.substr(equals + 1)};
    return true;
}

} // namespace fs
