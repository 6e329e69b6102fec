// Speed of the message channel and of a second start, each compared with its lower bound. Prints
// tables; see docs/performance.md. Run by "make bench".
//
//   ipc_bench [EXCHANGES]            measures; EXCHANGES per size and turn (default 1500)
//   ipc_bench serve KIND STOP READY  the server of a measurement, in a process of its own

#include "bench/ipc/bare_pipe.h"
#include "bench/support/give_up.h"
#include "bench/support/samples.h"
#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/ipc/running_program.h"
#include "tests/windows/support/child_process.h"
#include "tests/windows/support/unique_name.h"
#include "ui/common/sys/interprocess_communication_win.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace {

using ipctest::ChildProcess;
using ipctest::NamedEvent;
using namespace bench;

constexpr double exchangeGoal = 1.10;
constexpr DWORD longestRun = 600000; // ms
constexpr int turns = 4;
constexpr int starts = 15;

class Echo : public IMessageFromOtherProcess
{
public:
    void onMessageFromOtherProcess(unsigned long, const std::string& text) override
    {
        answerText = text;
    }
};

int serveChannel(const NamedEvent& stop, const NamedEvent& ready)
{
    Echo echo;
    CInterprocessCommunicationWin channel;
    channel.claimMutex();
    channel.receiver = &echo;
    const int result = ipctest::serveForSure(channel);
    ready.set();
    // Its end also ends a client's wait for an answer.
    if (!stop.wait(longestRun))
        giveUp("a server is not told to stop");
    return result;
}

class Server
{
public:
    explicit Server(const std::wstring& kind)
        : stop(ipctest::uniqueName(L"tessera_bench_stop")), stopEvent(stop),
          ready(ipctest::uniqueName(L"tessera_bench_ready")), readyEvent(ready),
          process(ipctest::siblingProgram(L"ipc_bench"), {L"serve", kind, stop, ready})
    {
        if (!readyEvent.wait())
            giveUp("a server does not start");
    }
    ~Server()
    {
        stopEvent.set();
        process.waitForExit();
    }

private:
    std::wstring stop;
    NamedEvent stopEvent;
    std::wstring ready;
    NamedEvent readyEvent;
    ChildProcess process;
};

struct Times
{
    std::vector<double> exchange; // request to answer on an open connection
    std::vector<double> whole;    // with opening and closing
};

// `connect` returns false while the server is not ready for the next client; that time is not
// counted.
void measure(int count, const std::function<bool()>& connect, const std::function<bool()>& exchange,
             const std::function<void()>& close, Times& times)
{
    for (int i = 0; i < count; ++i) {
        const ULONGLONG end = GetTickCount64() + ipctest::waitTime(ipctest::patience);
        double begun = now();
        while (!connect()) {
            if (GetTickCount64() >= end)
                giveUp("a server takes no client");
            WaitNamedPipeW(ipctest::pipePath, 1000);
            begun = now();
        }
        const double connected = now();
        if (!exchange()) {
            giveUp("an exchange failed");
        }
        const double answered = now();
        close();
        times.exchange.push_back(answered - connected);
        times.whole.push_back(now() - begun);
    }
}

void measureBare(std::size_t textSize, int count, Times& times)
{
    const Server server(L"bare");
    BareClient client;
    std::vector<unsigned char> request = ipctest::frame(1, std::string(textSize, 'x'));
    measure(
        count, [&] { return client.connect(); },
        [&] { return client.exchange(request) == request.size(); }, [&] { client.close(); }, times);
}

void measureChannel(std::size_t textSize, int count, Times& times)
{
    const Server server(L"channel");
    CInterprocessCommunicationWin client;
    client.claimMutex();
    client.firstInstance = false;
    const std::string text(textSize, 'x');
    measure(
        count, [&] { return client.connectToServer() == 0; },
        [&] { return client.sendMessage(text) == 0; }, [&] { client.close(); }, times);
    if (client.getAnswer() != text) {
        giveUp("the answer is not the text");
    }
}

// `goal` 0: none.
void row(const char* name, const char* what, const std::vector<double>& ours,
         const std::vector<double>& floor, double goal)
{
    const double our = median(ours);
    const double least = median(floor);
    std::printf("%-8s %-18s %10.0f %10.0f %10.1f %10.1f   %s\n", name, what, 1e6 / our, 1e6 / least,
                our, least, verdict(our / least, goal).c_str());
}

// Floor and channel in turns, so that other load on the machine affects both.
void compareExchanges(int count)
{
    std::printf("Round trips            (per second, from the medians)   (median, microseconds)\n");
    std::printf("%-8s %-18s %10s %10s %10s %10s   %s\n", "text", "", "channel", "floor", "channel",
                "floor", "ratio");
    const struct
    {
        const char* name;
        std::size_t size;
    } sizes[] = {{"16 B", 16}, {"1 KiB", 1024}, {"60 KiB", 61440}};
    for (const auto& size : sizes) {
        Times bare;
        Times channel;
        for (int turn = 0; turn < turns; ++turn) {
            measureBare(size.size, count, bare);
            measureChannel(size.size, count, channel);
        }
        row(size.name, "request to answer", channel.exchange, bare.exchange, exchangeGoal);
        row(size.name, "with open, close", channel.whole, bare.whole, 0);
        std::fflush(stdout);
    }
}

double startToExit(const std::wstring& program, const std::vector<std::wstring>& arguments)
{
    const double begun = now();
    const ChildProcess process(program, arguments, {true, false});
    if (process.waitForExit() != 0u) {
        giveUp("a start failed");
    }
    return (now() - begun) / 1000;
}

void compareStarts()
{
    const ipctest::RunningProgram first;
    if (!first.ready()) {
        giveUp("the program does not start");
    }
    std::vector<double> bare;
    std::vector<double> answered;
    std::vector<double> unanswered;
    for (int i = 0; i < starts; ++i) {
        bare.push_back(startToExit(ipctest::siblingProgram(L"bare_qt"), {}));
        answered.push_back(startToExit(ipctest::programPath(), {L"/gethwnd"}));
        unanswered.push_back(startToExit(ipctest::programPath(), {}));
    }
    first.close();
    const double least = median(bare);
    std::printf("\nStart to exit                                 (median, milliseconds)   ratio\n");
    const struct
    {
        const char* name;
        double time;
    } rows[] = {{"bare static Qt program, starts and quits", least},
                {"second start, answered (\"/gethwnd\")", median(answered)},
                {"second start, not answered (no arguments)", median(unanswered)}};
    for (const auto& line : rows)
        std::printf("%-46s %10.0f %19.2f\n", line.name, line.time, line.time / least);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "serve" && argc == 5) {
        const std::string stopName = argv[3];
        const std::string readyName = argv[4];
        const NamedEvent stop(std::wstring(stopName.begin(), stopName.end()));
        const NamedEvent ready(std::wstring(readyName.begin(), readyName.end()));
        if (std::string(argv[2]) == "channel")
            return serveChannel(stop, ready);
        serveBare(stop.handle(), ready.handle());
        return 0;
    }
    compareStarts();
    std::printf("\n");
    compareExchanges(mode.empty() ? 1500 : std::atoi(argv[1]));
    return 0;
}
