#pragma once

// The text of one line of the log, without time, process and thread. Pure; any thread.

#include "support/keelbase/keelbase.h"

#include <string>

namespace Keelbase {

// A message's text is cut beyond this many bytes, so that no message fills a log file alone.
constexpr std::size_t maximumTextSize = std::size_t{128} * 1024;

// "<level> <category> <source file>:<line> | <text>". Control bytes, line breaks among them, are
// written as \n, \r, \t or \xNN: a text that came from outside can never look like a line of its
// own. Backslashes stay as they are, for the sake of paths.
std::string composeLine(const LogRecord& record);

} // namespace Keelbase
