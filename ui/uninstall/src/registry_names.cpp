#include "ui/uninstall/src/registry_names.h"

#include "ui/common/config/brand.h"
#include "ui/uninstall/src/text_parts.h"

namespace uninstall {

std::string listName(std::string_view brand)
{
    return brand == fs::companyBrand ? "UninstallPaths" : "UninstPaths";
}

std::string shownName(std::string_view installPath, std::string_view brand)
{
    return std::string(beforeFirst(afterLast(installPath, std::string(brand) + "\\"), "\\"));
}

} // namespace uninstall
