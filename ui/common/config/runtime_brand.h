#pragma once

#include <string>

namespace fs {

// The brand that this process runs under: "Corvane" or "Lumacraft". Decided once, on first use,
// from the program's folder. Any thread; never fails.
const std::string& runtimeBrandName();

// The brand of a program in `moduleFolder`: from the name of the folder above, else from the file
// "global.cfg" there, else "Lumacraft".
std::string runtimeBrandFor(const std::wstring& moduleFolder);

} // namespace fs
