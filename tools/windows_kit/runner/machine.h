#pragma once

#include <filesystem>
#include <string>

namespace kit {

// The dots per inch of the main screen. The calling program must be aware of them.
int screenDpi();

// Lines about this computer, the account and the screen: Windows' version, kind of account,
// elevation, dots per inch.
std::string describeMachine();

// In hexadecimal digits; empty when the file cannot be read.
std::string sha256Of(const std::filesystem::path& file);

} // namespace kit
