#pragma once

#include <QString>

namespace uninstall {

// Keys below the suite's registry root, HKEY_CURRENT_USER\Software\Corvane\, for QSettings in
// native format. The applications' installers write them.

// The root itself; value UninstallMode (1 during a full run).
QString suiteKey();

// Value name = display name, data = uninstall command. The key's name depends on the runtime brand.
QString uninstallListKey();

// Value name = id string, data = install path.
QString applicationPathsKey();

} // namespace uninstall
