// config_writer FILE LETTER COUNT TURNS START: sets COUNT keys LETTER0000, LETTER0001, ... in FILE
// and saves after each. Without turns a failed save is repeated, since another process may have the
// file open.
//   TURNS  the name of the turns to take with another process, or "-" to write at any time
//   START  the name of an event to wait for before the first save, or "-"
// Exit code: the number of the first step that failed, else 0.

#include "tests/windows/config/turns.h"
#include "ui/common/config/config.h"
#include "ui/common/sys/result_codes.h"

#include <cstdio>
#include <memory>
#include <string>

#include <windows.h>

#include <shellapi.h>

namespace {

std::string fourDigits(int number)
{
    char text[16] = {};
    std::snprintf(text, sizeof(text), "%04d", number);
    return text;
}

bool saveRepeatedly(fs::CConfig& config)
{
    constexpr ULONGLONG patienceMs = 60000;
    const ULONGLONG begun = GetTickCount64();
    int result = config.save();
    while (result == sys::readOrWriteFailed && GetTickCount64() - begun < patienceMs)
        result = config.save();
    return result == sys::success;
}

} // namespace

int main()
{
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (count != 6)
        return 1;
    const std::wstring file = arguments[1];
    const char prefix = static_cast<char>(*arguments[2]);
    const int rounds = std::stoi(arguments[3]);
    const std::wstring turnsName = arguments[4];
    const std::wstring startName = arguments[5];
    LocalFree(arguments);

    std::unique_ptr<windows_tests::Turns> turns;
    if (turnsName != L"-")
        turns = std::make_unique<windows_tests::Turns>(turnsName, false);
    fs::CConfig config;
    config.setFileName(file);
    config.load();
    if (startName != L"-") {
        const win32::KernelHandle start(CreateEventW(nullptr, TRUE, FALSE, startName.c_str()));
        if (WaitForSingleObject(start.get(), 60000) != WAIT_OBJECT_0)
            return 2;
    }
    for (int round = 0; round < rounds; ++round) {
        if (turns && !turns->wait())
            return 3;
        config.setValue(prefix + fourDigits(round), prefix + fourDigits(round));
        const bool saved = turns ? config.save() == sys::success : saveRepeatedly(config);
        if (!saved)
            return 4;
        if (turns)
            turns->endTurn();
    }
    return 0;
}
