#include "ui/common/config/common_config.h"

#include "ui/common/sys/folders.h"
#include "ui/common/sys/text_convert.h"
#include "ui/uninstall/src/app_catalogue.h"

#include <filesystem>

namespace fs {

std::unique_ptr<CConfig> makeCommonConfig()
{
    auto config = std::make_unique<CConfig>();
    const std::filesystem::path folder = sys::folderPath(sys::FolderKind::suiteSettings);
    config->setFileName(folder / L"common.cfg");
    config->load();
    return config;
}

CConfig& commonConfig()
{
    // Never destroyed: other static objects may still read settings while they end.
    static CConfig& config = *makeCommonConfig().release();
    return config;
}

std::wstring applicationConfigPath(int appId)
{
    const std::filesystem::path folder =
        sys::folderPath(sys::FolderKind::suiteSettings, static_cast<unsigned>(appId));
    return folder / (sys::fromUtf8(uninstall::idToString(appId)) + L".cfg");
}

} // namespace fs
