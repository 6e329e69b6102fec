#pragma once

// An application's uninstall command as its installer registered it: the program's path, then
// " /log", then the rest of the log switch, whose path holds "logs\", the application's id string
// and "_uninstall". All texts are UTF-8. Pure functions; any thread.

#include <string>
#include <string_view>
#include <vector>

namespace uninstall {

// The text after the last "logs\" and before the first "_uninstall" that follows. A mark that is
// absent cuts nothing.
std::string idStringFromCommand(std::string_view command);

// The command split at " /log", empty parts kept: at least one part.
std::vector<std::string> splitCommand(std::string_view command);

struct RunOptions
{
    int remaining;       // rows not yet uninstalled, this one included
    bool full;           // every row was checked when the run began
    bool deleteSettings; // "Delete settings and history" is checked
};

// The first part, unchanged; empty when there is nothing to run.
std::string programOf(const std::vector<std::string>& parts);

// The switches for the application's uninstaller, in their order.
std::vector<std::string> uninstallArguments(const std::vector<std::string>& parts,
                                            const RunOptions& options);

// True when the registry value UninstallMode is written before the uninstaller starts: in a full
// run, as long as more of the suite follows.
bool writesUninstallMode(const RunOptions& options);

} // namespace uninstall
