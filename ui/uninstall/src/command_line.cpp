#include "ui/uninstall/src/command_line.h"

#include <algorithm>

namespace uninstall {

std::vector<std::string> copyArguments(char** argv)
{
    std::vector<std::string> arguments;
    // The array may be empty.
    if (argv[0] == nullptr)
        return arguments;
    for (char** argument = argv + 1; *argument != nullptr; ++argument)
        arguments.emplace_back(*argument);
    return arguments;
}

std::string appArgument(const std::vector<std::string>& arguments)
{
    // The last "/app" counts, even one that is itself the value of the one before.
    const auto last = std::find(arguments.rbegin(), arguments.rend(), "/app");
    if (last == arguments.rend() || last == arguments.rbegin())
        return {};
    return *std::prev(last);
}

} // namespace uninstall
