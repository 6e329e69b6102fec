#include "ui/common/config/brand.h"

#include <algorithm>
#include <cstddef>

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
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));

        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos)
            continue;
        if (withoutTrailing(line.substr(0, equals), " \t") != "CompanyBrandMode")
            continue;
        std::string_view value = withoutTrailing(line.substr(equals + 1), "\r\n \t");
        value = withoutLeading(value, " \t");
        return value == "1" ? companyBrand : defaultBrand;
    }
    return defaultBrand;
}

} // namespace fs
