#include "ui/uninstall/src/registry_keys.h"

#include "ui/common/config/runtime_brand.h"
#include "ui/uninstall/src/registry_names.h"

namespace uninstall {

QString suiteKey()
{
    return QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvane\\");
}

QString uninstallListKey()
{
    return suiteKey() + QString::fromStdString(listName(fs::runtimeBrandName()));
}

QString applicationPathsKey()
{
    return suiteKey() + QStringLiteral("AppPaths");
}

} // namespace uninstall
