#pragma once

#include "ui/common/config/config.h"

namespace stats {

// Saves the suite's common configuration while no other process does the same through here.
// CConfig merges what it finds on the disk: a file that another process has just emptied, to write
// it anew, would read as one that has lost all its keys, and stay so.
//
// Waits for the other process for at most two seconds and then saves all the same. Returns the
// result of CConfig::save. Any thread.
int saveExclusively(fs::CConfig& common);

} // namespace stats
