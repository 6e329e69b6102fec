#include "support/keelbase/platform.h"

namespace Keelbase {

std::filesystem::path logFileBelow(const std::filesystem::path& roaming,
                                   const std::string& settingsName,
                                   const std::filesystem::path& program)
{
    if (roaming.empty() || program.empty())
        return {};
    std::filesystem::path name = program.filename();
    name.replace_extension(".log");
    return roaming / settingsName / "logs" / name;
}

} // namespace Keelbase
