#include "ui/uninstall/src/uninstall_command.h"

#include "ui/uninstall/src/text_parts.h"

#include <cstddef>

namespace uninstall {

namespace {

constexpr std::string_view logSwitch = "/log";
constexpr std::string_view logSeparator = " /log";

} // namespace

std::string idStringFromCommand(std::string_view command)
{
    return std::string(beforeFirst(afterLast(command, "logs\\"), "_uninstall"));
}

std::vector<std::string> splitCommand(std::string_view command)
{
    std::vector<std::string> parts;
    std::size_t found = command.find(logSeparator);
    while (found != std::string_view::npos) {
        parts.emplace_back(command.substr(0, found));
        command.remove_prefix(found + logSeparator.size());
        found = command.find(logSeparator);
    }
    parts.emplace_back(command);
    return parts;
}

std::string programOf(const std::vector<std::string>& parts)
{
    return parts.empty() ? std::string() : parts.front();
}

std::vector<std::string> uninstallArguments(const std::vector<std::string>& parts,
                                            const RunOptions& options)
{
    // No logs while more than three rows remain, nor when settings and history are deleted.
    const bool dropsLog = options.full && (options.remaining > 3 || options.deleteSettings);

    std::vector<std::string> arguments;
    if (!dropsLog)
        arguments.push_back(std::string(logSwitch) + (parts.empty() ? "" : parts.back()));
    arguments.emplace_back("/SILENT");
    if (options.deleteSettings)
        arguments.emplace_back("/FULL");
    arguments.emplace_back("/SUPPRESSMSGBOXES");
    if (options.full)
        arguments.emplace_back(options.remaining == 1 ? "/LASTAPP" : "/DISABLEREDIRECT");
    return arguments;
}

bool writesUninstallMode(const RunOptions& options)
{
    return options.full && options.remaining >= 2;
}

} // namespace uninstall
