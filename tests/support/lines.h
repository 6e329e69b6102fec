#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace testing_support {

// The lines of a text without their line feeds; a last line need not have one.
inline std::vector<std::string> linesOf(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

} // namespace testing_support
