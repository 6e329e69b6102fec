#pragma once

#include <string>

namespace fs {

// The brand that this process runs under: "Corvane" or "Lumacraft". Decided on first use from
// where the program lies, and kept. Any thread; never fails.
const std::string& runtimeBrandName();

// The decision for a program in `moduleFolder`: by the name of the folder above, else by the file
// "global.cfg" there, else "Lumacraft".
std::string runtimeBrandFor(const std::wstring& moduleFolder);

} // namespace fs
