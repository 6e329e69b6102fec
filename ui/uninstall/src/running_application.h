#pragma once

#include <string>

namespace uninstall {

// True when an instance mutex with this application's id string exists: every application of the
// suite holds "Global\Lumacraft_" + id string while it runs. A mutex that Windows refuses to open,
// such as another account's, counts as none and is logged. Any thread.
bool applicationIsRunning(const std::string& idString);

} // namespace uninstall
