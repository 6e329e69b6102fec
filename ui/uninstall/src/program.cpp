#include "ui/uninstall/src/program.h"

#include "ui/uninstall/src/command_line.h"
#include "ui/uninstall/src/widget.h"

#include <QApplication>

namespace uninstall {

int runProgram(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    // With rounded factors 125 % would enlarge only the texts, and 150 % would double the window.
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
#if QT_CONFIG(sessionmanager)
    // At sign-out Qt would close the window, and a run, which refuses that, would stop the
    // sign-out.
    QApplication::setFallbackSessionManagementEnabled(false);
#endif
    const std::vector<std::string> arguments = copyArguments(argv);
    Widget window(arguments);
    if (window.isAnotherInstanceRunning())
        return 0;
    window.show();
    return QApplication::exec();
}

} // namespace uninstall
