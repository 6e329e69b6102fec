#include "ui/common/config/brand.h"

#include "ui/common/config/config_line.h"

#include <algorithm>

namespace fs {

namespace {

std::string_view withoutTrailing(std::string_view text, const char* characters)
{
    return text.substr(0, text.find_last_not_of(characters) + 1);
}

std::string_view withoutLeading(std::string_view text, const char* characters)
{
    return text.substr(std::min(text.find_first_not_of(characters), text.size()));
}

} // namespace

std::optional<std::string> brandFromFolderName(std::string_view name)
{
    if (name == companyBrand || name == defaultBrand)
        return std::string(name);
    return std::nullopt;
}

std::string brandFromGlobalConfig(std::string_view text)
{
    ConfigLine line;
    while (!text.empty()) {
        if (!takeConfigLine(text, line) || withoutTrailing(line.key, " \t") != "CompanyBrandMode")
            continue;
        std::string_view value = withoutTrailing(line.value, "\r\n \t");
        value = withoutLeading(value, " \t");
        return value == "1" ? companyBrand : defaultBrand;
    }
    return defaultBrand;
}

} // namespace fs
