#pragma once

#include <string>
#include <vector>

namespace uninstall {

// The arguments after the program's name, unchanged. `argv` ends with a null pointer. Both
// functions are pure; any thread.
std::vector<std::string> copyArguments(char** argv);

// The id string after the last "/app" (case-sensitive); empty without one, or when "/app" is the
// last argument.
std::string appArgument(const std::vector<std::string>& arguments);

} // namespace uninstall
