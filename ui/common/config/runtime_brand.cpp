#include "ui/common/config/runtime_brand.h"

#include "ui/common/config/brand.h"
#include "ui/common/sys/file_io.h"
#include "ui/common/sys/module_path.h"
#include "ui/common/sys/result_codes.h"
#include "ui/common/sys/text_convert.h"

#include <filesystem>
#include <string_view>

namespace fs {

namespace {

constexpr const wchar_t* separators = L"\\/";

std::wstring_view withoutTrailingSeparators(std::wstring_view path)
{
    return path.substr(0, path.find_last_not_of(separators) + 1);
}

std::wstring_view parentOf(std::wstring_view path)
{
    const std::size_t separator = path.find_last_of(separators);
    return separator == std::wstring_view::npos ? std::wstring_view() : path.substr(0, separator);
}

} // namespace

std::string runtimeBrandFor(const std::wstring& moduleFolder)
{
    const std::wstring_view parent =
        withoutTrailingSeparators(parentOf(withoutTrailingSeparators(moduleFolder)));
    if (parent.empty())
        return defaultBrand;
    const std::wstring_view name = parent.substr(parent.find_last_of(separators) + 1);
    if (const auto brand = brandFromFolderName(sys::toNarrow(name)))
        return *brand;

    // With a separator even after a drive: "D:" is its current folder, "D:\" its root. Paths that
    // begin with "\\?\" know no other separator.
    constexpr wchar_t separator = std::filesystem::path::preferred_separator;
    const std::wstring globalConfig = std::wstring(parent) + separator + L"global.cfg";
    std::string content;
    if (!sys::fileExists(globalConfig) || sys::readWholeFile(globalConfig, content) != sys::success)
        return defaultBrand;
    return brandFromGlobalConfig(content);
}

const std::string& runtimeBrandName()
{
    static const std::string name = runtimeBrandFor(sys::moduleFolder());
    return name;
}

} // namespace fs
