// log_writer SETTINGS_NAME LETTER COUNT SIZE END START: logs COUNT messages "LETTER<number>" filled
// up to SIZE bytes, at the levels 3, 6 and 7 in turn, with the settings name SETTINGS_NAME.
//   END    "return" ends normally; "crash" terminates the process
//   START  the name of an event to wait for before the first message, or "-"
// Ends with 0, or 9 after the crash.

#include "support/keelbase/keelbase.h"
#include "support/win32/unique_handle.h"

#include <cstdlib>
#include <string>

#include <windows.h>

int main(int count, char** arguments)
{
    if (count != 7)
        return 1;
    Keelbase::setSettingsName(arguments[1]);
    const std::string letter = arguments[2];
    const int messages = std::atoi(arguments[3]);
    const std::size_t size = static_cast<std::size_t>(std::atoi(arguments[4]));
    if (std::string(arguments[6]) != "-") {
        const win32::KernelHandle start(CreateEventA(nullptr, TRUE, FALSE, arguments[6]));
        if (WaitForSingleObject(start.get(), 60000) != WAIT_OBJECT_0)
            return 3;
    }
    const int levels[] = {3, 6, 7};
    for (int number = 0; number < messages; ++number) {
        Keelbase::LoggerHandle logger;
        if (Keelbase::createLogger(logger) != 0)
            return 2;
        std::string text = letter + std::to_string(number);
        if (text.size() < size)
            text += ' ' + std::string(size - text.size() - 1, '.');
        constexpr Keelbase::LogSource source{"Writer", "tests/log_writer"};
        KEELBASE_LOG_AT(source, levels[number % 3], 1) << text;
    }
    if (std::string(arguments[5]) == "crash")
        TerminateProcess(GetCurrentProcess(), 9);
    return 0;
}
