#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kit {

struct TestEntry
{
    std::string name;
    unsigned seconds = 0; // its time limit
    std::string program;  // beside the list
    std::string arguments;
};

// Lines "<name> <seconds> <program> [arguments]" in ASCII. Empty when the file cannot be read.
std::vector<TestEntry> readTestList(const std::filesystem::path& file);

} // namespace kit
