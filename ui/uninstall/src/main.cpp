#include <QApplication>

#include "support/keelbase/keelbase.h"
#include "ui/uninstall/src/command_line.h"
#include "ui/uninstall/src/widget.h"

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
    QApplication application(argc, argv);
    const std::vector<std::string> arguments = uninstall::copyArguments(argv);
    Widget window(arguments);
    if (window.isAnotherInstanceRunning())
        return 0;
    window.show();
    return QApplication::exec();
}
