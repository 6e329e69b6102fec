#include "tools/windows_kit/runner/test_list.h"

#include <fstream>
#include <sstream>

namespace kit {

std::vector<TestEntry> readTestList(const std::filesystem::path& file)
{
    std::vector<TestEntry> entries;
    std::ifstream stream(file);
    std::string line;
    while (std::getline(stream, line)) {
        std::istringstream words(line);
        TestEntry entry;
        if (!(words >> entry.name >> entry.seconds >> entry.program))
            continue;
        std::getline(words >> std::ws, entry.arguments);
        entries.push_back(entry);
    }
    return entries;
}

} // namespace kit
