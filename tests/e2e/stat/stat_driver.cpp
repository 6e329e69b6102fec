// The program's statistics without its windows, controlled by lines on standard input. Each command
// is answered by one line on standard output.
//
//   start ID           runs the start-up for the application; answer: milliseconds
//   send NAME          queues one "click" event; answer: number microseconds
//   post NAME          the same, posted before the answer
//   reread             rereads common.cfg; answer: ClientGuid Location
//   offline            makes every host's name unknown; answer: 1
//
// At the end of the input the process ends as the program does, with static destruction.

#include "support/keelbase/keelbase.h"
#include "tests/support/import_slot.h"
#include "ui/common/config/common_config.h"
#include "ui/common/stat/app_event_stat.h"
#include "ui/uninstall/src/stat_startup.h"

#include <chrono>
#include <functional>
#include <iostream>
#include <sstream>
#include <string>

#include <winsock2.h>

#include <ws2tcpip.h>

namespace {

using Clock = std::chrono::steady_clock;

template <typename Unit>
long long spent(Clock::time_point begun)
{
    return std::chrono::duration_cast<Unit>(Clock::now() - begun).count();
}

void start(int applicationId)
{
    const auto begun = Clock::now();
    uninstall::startStatistics(applicationId, false,
                               [](const std::function<void()>& call) { call(); });
    std::cout << spent<std::chrono::milliseconds>(begun);
}

void send(const std::string& name, bool sync)
{
    const auto begun = Clock::now();
    const int number = stats::AppStatHelper::instance().sendEvent("click", name, "", "", sync, 0);
    const long long microseconds = spent<std::chrono::microseconds>(begun);
    std::cout << number << ' ' << microseconds;
}

void reread()
{
    fs::CConfig& common = fs::commonConfig();
    common.reload();
    std::cout << common.getValue("ClientGuid", "-") << ' ' << common.getValue("Location", "-");
}

int WSAAPI knowNobody(PCSTR, PCSTR, const ADDRINFOA*, PADDRINFOA*)
{
    return WSAHOST_NOT_FOUND;
}

// This machine's own name service may hang.
void goOffline()
{
    std::cout << (replaceImport("getaddrinfo", &knowNobody) != nullptr);
}

bool execute(const std::string& command, const std::string& argument)
{
    if (command == "start")
        start(std::stoi(argument));
    else if (command == "send" || command == "post")
        send(argument, command == "post");
    else if (command == "reread")
        reread();
    else if (command == "offline")
        goOffline();
    else
        return false;
    std::cout << std::endl;
    return true;
}

} // namespace

int main()
{
    Keelbase::setSettingsName("Lumacraft");
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::string command;
        std::string argument;
        words >> command >> argument;
        if (!execute(command, argument))
            return 2;
    }
    return 0;
}
