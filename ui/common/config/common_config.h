#pragma once

#include "ui/common/config/config.h"

#include <memory>

namespace fs {

// A new object on the suite-wide "common.cfg", loaded if the file is there.
std::unique_ptr<CConfig> makeCommonConfig();

// The process's own object on "common.cfg", made on first use. Any thread.
CConfig& commonConfig();

} // namespace fs
