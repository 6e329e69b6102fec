#pragma once

// Decides which of the two brands an installation runs under. Pure functions; any thread.

#include <optional>
#include <string>
#include <string_view>

namespace fs {

constexpr const char* companyBrand = "Corvane";
constexpr const char* defaultBrand = "Lumacraft";

// The brand whose name equals the name of the folder above the program's own, if one does.
std::optional<std::string> brandFromFolderName(std::string_view name);

// The brand from the content of "global.cfg" in that folder: the first line with the key
// CompanyBrandMode decides, and only the value 1 selects companyBrand. Unlike in other ".cfg" files
// blanks around "=" and at the end of the line are ignored.
std::string brandFromGlobalConfig(std::string_view text);

} // namespace fs
