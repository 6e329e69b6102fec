#include "support/keelbase/keelbase.h"
#include "ui/uninstall/src/command_line.h"
#include "ui/uninstall/src/widget.h"

#include <QApplication>

namespace {

// Before main: the window's constructor already writes log lines.
const struct SettingsName
{
    SettingsName() { Keelbase::setSettingsName("Lumacraft"); }
} settingsNameIsSet;

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    // Rounded to whole factors, 125 % enlarges the texts alone and 150 % doubles the window.
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
#if QT_CONFIG(sessionmanager)
    // Qt would close the window at sign-out, and a run, which keeps it open, would stop that.
    QApplication::setFallbackSessionManagementEnabled(false);
#endif
    const std::vector<std::string> arguments = uninstall::copyArguments(argv);
    Widget window(arguments);
    if (window.isAnotherInstanceRunning())
        return 0;
    window.show();
    return QApplication::exec();
}
