#include "support/keelbase/keelbase.h"
#include "ui/uninstall/src/command_line.h"
#include "ui/uninstall/src/widget.h"

#include <QApplication>

namespace {

// Before main, since the first message fixes the log's place.
const struct SettingsName
{
    SettingsName() { Keelbase::setSettingsName("Lumacraft"); }
} settingsNameIsSet;

} // namespace

int main(int argc, char* argv[])
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
    const std::vector<std::string> arguments = uninstall::copyArguments(argv);
    Widget window(arguments);
    if (window.isAnotherInstanceRunning())
        return 0;
    window.show();
    return QApplication::exec();
}
