#include "ui/common/config/common_config.h"

#include "ui/common/sys/folders.h"

namespace fs {

std::unique_ptr<CConfig> makeCommonConfig()
{
    auto config = std::make_unique<CConfig>();
    config->setFileName(
        sys::joinedPath(sys::folderPath(sys::FolderKind::suiteSettings), L"common.cfg"));
    config->load();
    return config;
}

CConfig& commonConfig()
{
    // Never destroyed: other static objects may read settings in their destructors.
    static CConfig& config = *makeCommonConfig().release();
    return config;
}

} // namespace fs
