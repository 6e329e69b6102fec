#include "support/keelbase/keelbase.h"
#include "ui/uninstall/src/program.h"

namespace {

// Before main, since the first message fixes the log's place.
const struct SettingsName
{
    SettingsName() { Keelbase::setSettingsName("Lumacraft"); }
} settingsNameIsSet;

} // namespace

int main(int argc, char* argv[])
{
    return uninstall::runProgram(argc, argv);
}
