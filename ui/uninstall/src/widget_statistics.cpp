// What the main window contributes to the statistics: the moment they start, and a wait for the
// country that does not freeze the window.

#include "ui/uninstall/src/responsive_wait.h"
#include "ui/uninstall/src/stat_startup.h"
#include "ui/uninstall/src/widget.h"

void Widget::startStatistics(int appId)
{
    // Only tells apart events of the suite itself, and the suite is never surveyed.
    constexpr bool suiteFlag = false;
    uninstall::startStatistics(appId, suiteFlag, uninstall::runAside);
}
