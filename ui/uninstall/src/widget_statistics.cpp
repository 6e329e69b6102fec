// The main window's start of the statistics, which does not freeze the window.

#include "ui/uninstall/src/responsive_wait.h"
#include "ui/uninstall/src/stat_startup.h"
#include "ui/uninstall/src/widget.h"

void Widget::startStatistics(int appId)
{
    // Matters only for the suite itself, which has no survey.
    constexpr bool suiteFlag = false;
    uninstall::startStatistics(appId, suiteFlag, uninstall::runAside);
}
