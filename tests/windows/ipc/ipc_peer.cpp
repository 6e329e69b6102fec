// The other process of the channel's tests: a copy that serves, sends or only claims the mutex.
//
//   ipc_peer serve NAME [client-before-first-wait]
//       serves until the event NAME_stop; signals NAME_ready once the server runs. Exit code: the
//       result of createServer. For the answers see ScriptedReceiver. The client before the first
//       wait reads; NAME_let_go is signalled when its read has failed.
//   ipc_peer send TEXT
//       sends TEXT and prints the answer. Exit code: the result of connectToServer or sendMessage.
//   ipc_peer claim NAME [forget]
//       claims the mutex, prints what that logged, signals NAME_first or NAME_later, and ends on
//       NAME_stop. With "forget" it destroys its channel before it signals.
//
// With TESSERA_IPC_UNINSTALLER=NAME in its environment it is a slow uninstaller, whatever its
// arguments: it signals NAME_removing and ends on NAME_removed.

#include "tests/support/recorded_log.h"
#include "tests/windows/ipc/channel_client.h"
#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "ui/common/sys/interprocess_communication_win.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <thread>
#include <vector>

#include <windows.h>

#include <psapi.h>

namespace {

using ipctest::NamedEvent;

constexpr int badUsage = 200;
constexpr DWORD longestRun = 600000; // ms

// Set by "client-before-first-wait" during createServer: the new server thread first runs
// threadStarted, which connects a client before the server's first wait.
bool connectFromNewThread = false;
HANDLE earlyClient = INVALID_HANDLE_VALUE;

void NTAPI threadStarted(PVOID, DWORD reason, PVOID)
{
    if (reason != DLL_THREAD_ATTACH || !connectFromNewThread)
        return;
    connectFromNewThread = false;
    earlyClient = CreateFileW(ipctest::pipePath, GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                              OPEN_EXISTING, 0, nullptr);
}

// The result of NtQuerySystemInformation for all open handles of the system, as on Windows and
// Wine. (Wine's GetProcessHandleCount always returns 0.)
struct HandleEntry
{
    void* object;
    ULONG_PTR processId;
    ULONG_PTR handle;
    ULONG access;
    USHORT backTrace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};
struct HandleTable
{
    ULONG_PTR count;
    ULONG_PTR reserved;
    HandleEntry entries[1];
};

std::size_t openHandles()
{
    constexpr int allHandles = 64;
    using Query = LONG(NTAPI*)(int, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    std::vector<std::uint64_t> memory(1 << 19);
    if (query(allHandles, memory.data(), static_cast<ULONG>(memory.size() * 8), nullptr) < 0)
        return 0;
    const auto* table = reinterpret_cast<const HandleTable*>(memory.data());
    const HandleEntry* first = table->entries;
    return static_cast<std::size_t>(
        std::count_if(first, first + table->count, [](const HandleEntry& entry) {
            return entry.processId == GetCurrentProcessId();
        }));
}

std::string usage()
{
    const std::size_t handles = openHandles();
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof(memory);
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof(memory));
    return std::to_string(handles) + " " + std::to_string(memory.PagefileUsage / 1024);
}

// Answers a text with itself, except these:
class ScriptedReceiver : public IMessageFromOtherProcess
{
public:
    void onMessageFromOtherProcess(unsigned long pid, const std::string& text) override
    {
        ++deliveries;
        if (text == "#pid") {
            answerText = std::to_string(pid);
        } else if (text == "#empty") {
            answerText.clear();
        } else if (text == "#deliveries") { // so far, including this one
            answerText = std::to_string(deliveries);
        } else if (text == "#usage") { // handles, KiB of memory
            answerText = usage();
        } else if (text == "#no memory") {
            throw std::bad_alloc();
        } else if (text == "#throw") {
            throw 1;
        } else if (text.compare(0, 6, "#size ") == 0) { // that many bytes
            answerText.assign(std::strtoul(text.c_str() + 6, nullptr, 10), 'x');
        } else {
            answerText = text;
        }
    }

private:
    unsigned long deliveries = 0;
};

// Reads as the early client, and signals when the server has disconnected it.
void waitAsEarlyClient(const NamedEvent& letGo)
{
    char answer = 0;
    DWORD size = 0;
    if (!ReadFile(earlyClient, &answer, 1, &size, nullptr))
        letGo.set();
}

int serve(const std::wstring& name, bool withEarlyClient)
{
    const NamedEvent stop(name + L"_stop");
    ScriptedReceiver receiver;
    CInterprocessCommunicationWin channel;
    channel.claimMutex();
    channel.receiver = &receiver;
    connectFromNewThread = withEarlyClient;
    const int result = withEarlyClient ? channel.createServer() : ipctest::serveForSure(channel);
    if (withEarlyClient && earlyClient == INVALID_HANDLE_VALUE)
        return badUsage;
    const NamedEvent letGo(name + L"_let_go");
    std::thread earlyReader;
    if (withEarlyClient)
        earlyReader = std::thread([&letGo] { waitAsEarlyClient(letGo); });
    NamedEvent(name + L"_ready").set();
    stop.wait(longestRun);
    channel.close();
    if (earlyReader.joinable())
        earlyReader.join();
    return result;
}

int send(const std::string& text)
{
    const auto [result, answer] = ipctest::exchange(text);
    std::fwrite(answer.data(), 1, answer.size(), stdout);
    return result;
}

int claim(const std::wstring& name, bool forget)
{
    const NamedEvent stop(name + L"_stop");
    auto channel = std::make_unique<CInterprocessCommunicationWin>();
    {
        const testing_support::RecordedLog log;
        channel->claimMutex();
        for (const Keelbase::LogRecord& record : log.records())
            std::puts(record.text.c_str());
    }
    const NamedEvent role(name + (channel->firstInstance ? L"_first" : L"_later"));
    if (forget)
        channel.reset();
    role.set();
    stop.wait(longestRun);
    return 0;
}

int removeSlowly(const std::wstring& name)
{
    const NamedEvent removed(name + L"_removed");
    NamedEvent(name + L"_removing").set();
    removed.wait();
    return 0;
}

} // namespace

// The loader calls the functions in this section at each thread's start, before the thread's code.
#ifdef _MSC_VER
#pragma comment(linker, "/INCLUDE:_tls_used")
#pragma comment(linker, "/INCLUDE:atThreadStart")
#pragma section(".CRT$XLF", read)
extern "C" __declspec(allocate(".CRT$XLF")) const PIMAGE_TLS_CALLBACK atThreadStart =
    &threadStarted;
#else
extern "C" __attribute__((section(".CRT$XLF"), used)) const PIMAGE_TLS_CALLBACK atThreadStart =
    &threadStarted;
#endif

int main(int argc, char** argv)
{
    wchar_t uninstaller[200] = {};
    if (GetEnvironmentVariableW(L"TESSERA_IPC_UNINSTALLER", uninstaller, 200) > 0)
        return removeSlowly(uninstaller);
    const std::string mode = argc > 2 ? argv[1] : "";
    if (mode == "send")
        return send(argv[2]);
    const std::string narrow = argc > 2 ? argv[2] : "";
    const std::wstring name(narrow.begin(), narrow.end());
    if (mode == "serve")
        return serve(name, argc > 3);
    if (mode == "claim")
        return claim(name, argc > 3);
    return badUsage;
}
