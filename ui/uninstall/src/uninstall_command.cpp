#include "ui/uninstall/src/uninstall_command.h"

#include "ui/common/config/brand.h"

#include <cstddef>

namespace uninstall {

namespace {

constexpr std::string_view logSwitch = "/log";
constexpr std::string_view logSeparator = " /log";

std::string_view afterLast(std::string_view text, std::string_view mark)
{
    const std::size_t found = text.rfind(mark);
    return found == std::string_view::npos ? text : text.substr(found + mark.size());
}

std::string_view beforeFirst(std::string_view text, std::string_view mark)
{
    return text.substr(0, text.find(mark));
}

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
    // While a large suite goes, and when its settings and history go too, no logs are kept.
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

std::string shownName(std::string_view installPath, std::string_view brand)
{
    return std::string(beforeFirst(afterLast(installPath, std::string(brand) + "\\"), "\\"));
}

std::string listName(std::string_view brand)
{
    return brand == fs::companyBrand ? "UninstallPaths" : "UninstPaths";
}

} // namespace uninstall
