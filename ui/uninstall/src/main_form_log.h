#pragma once

#include <ostream>

#include "support/keelbase/keelbase.h"

namespace uninstall {

// Every message of the main window, whichever of its source files writes it, goes under one
// category and one source name; support staff search for both.
template <typename Compose>
void logMainForm(int sourceLine, Compose&& compose, int level = Keelbase::levelInformation)
{
    Keelbase::log(level, "MainForm", "ui/uninstall/src/widget", sourceLine,
                  std::forward<Compose>(compose));
}

} // namespace uninstall
