#pragma once

#include "support/keelbase/keelbase.h"

namespace uninstall {

// The main window's messages have one category and one source name, whichever of its files writes
// them; support staff search for both.
constexpr Keelbase::LogSource mainForm{"MainForm", "ui/uninstall/src/widget"};

} // namespace uninstall
