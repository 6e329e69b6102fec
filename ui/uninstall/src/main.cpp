#include "support/keelbase/keelbase.h"
#include "ui/uninstall/src/program.h"

#include <exception>

namespace {

constexpr Keelbase::LogSource logSource{"MainForm", "ui/uninstall/src/main"};

// Before main, since the first message fixes the log's place.
const struct SettingsName
{
    SettingsName() { Keelbase::setSettingsName("Lumacraft"); }
} settingsNameIsSet;

} // namespace

int main(int argc, char* argv[])
{
    try {
        return uninstall::runProgram(argc, argv);
    } catch (const std::exception& exception) {
        // Caught so that everything in runProgram is destroyed. A further "throw" would end in
        // abort() of GCC's library, which opens a message box.
        KEELBASE_LOG(logSource, Keelbase::levelError)
            << "Ended by an exception: " << exception.what();
        std::terminate();
    }
}
