#pragma once

// The decision which of the two brands an installation runs under. Pure functions; any thread.

#include <optional>
#include <string>
#include <string_view>

namespace fs {

constexpr const char* companyBrand = "Corvane";
constexpr const char* defaultBrand = "Lumacraft";

// The brand when the folder above the program's own is named exactly after one.
std::optional<std::string> brandFromFolderName(std::string_view name);

// The brand from the content of "global.cfg" in that folder: the first line with the key
// CompanyBrandMode decides, and only the value 1 means the company's brand. People edit this file
// by hand, so unlike in other ".cfg" files blanks around "=" and at the line's end do not count.
std::string brandFromGlobalConfig(std::string_view text);

} // namespace fs
