#pragma once

#include "ui/common/config/config.h"

#include <memory>
#include <string>

namespace fs {

// A new object on the suite-wide "common.cfg", loaded if the file is there.
std::unique_ptr<CConfig> makeCommonConfig();

// The process's own object on "common.cfg", made on first use. Any thread.
CConfig& commonConfig();

// The path of an application's settings file, <id string>\<id string>.cfg in the suite settings
// folder, by its numeric id in the catalogue. Neither file nor folder need exist.
std::wstring applicationConfigPath(int appId);

} // namespace fs
