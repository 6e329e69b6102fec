#pragma once

// Names below the suite's registry root, and names taken from its values. Pure functions; any
// thread.

#include <string>
#include <string_view>

namespace uninstall {

// The subkey that holds the uninstall list of a brand.
std::string listName(std::string_view brand);

// The folder name of an application, for the running-application warning: what follows the last
// "<brand>\" in its install path, up to the next "\".
std::string shownName(std::string_view installPath, std::string_view brand);

} // namespace uninstall
