#pragma once

#include <string>
#include <vector>

namespace uninstall {

// The arguments after the program's name, byte by byte, up to the terminating null pointer.
std::vector<std::string> copyArguments(char** argv);

// The id string after the last "/app" (exactly so written); empty without one, or when "/app" is
// the last argument.
std::string appArgument(const std::vector<std::string>& arguments);

} // namespace uninstall
