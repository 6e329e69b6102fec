#pragma once

#include "ui/common/config/config.h"

#include <memory>

namespace fs {

// A new object for the suite-wide "common.cfg", loaded if the file exists.
std::unique_ptr<CConfig> makeCommonConfig();

// The process's object for "common.cfg", made on first use and never destroyed. Any thread.
CConfig& commonConfig();

} // namespace fs
