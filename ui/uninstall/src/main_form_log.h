#pragma once

#include "support/keelbase/keelbase.h"

namespace uninstall {

// The main window's messages have one category and source name, whichever of its files writes them.
constexpr Keelbase::LogSource mainForm{"MainForm", "ui/uninstall/src/widget"};

} // namespace uninstall
