// Many copies of the real program started at once.

#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/ipc/running_program.h"
#include "tests/windows/ipc/stress.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ipctest;

namespace {

// The state of the first copy's server after the storm.
enum class Server { answers, ended, neither };

const char* describe(Server server)
{
    switch (server) {
    case Server::answers:
        return "answers";
    case Server::ended:
        return "ended by a client before its first wait";
    case Server::neither:
        break;
    }
    return "neither answers nor was ended by an early client";
}

Server serverOf(HWND window)
{
    // At level 7 the log says why a server thread ended.
    if (programLogs().find("ConnectNamedPipe failed") != std::string::npos) {
        const Stranger client(milliseconds(2000));
        return !client.connected() && client.error() == ERROR_PIPE_BUSY ? Server::ended
                                                                        : Server::neither;
    }
    Stranger client;
    const std::string handle =
        std::to_string(static_cast<int>(reinterpret_cast<std::intptr_t>(window)));
    const Bytes answer = client.transact(frame(1, "/gethwnd"));
    return std::string(answer.begin() + std::min<std::ptrdiff_t>(9, answer.end() - answer.begin()),
                       answer.end()) == handle
               ? Server::answers
               : Server::neither;
}

std::size_t stillRunning(const std::vector<ChildProcess>& copies)
{
    return static_cast<std::size_t>(
        std::count_if(copies.begin(), copies.end(),
                      [](const ChildProcess& copy) { return !copy.waitForExit(milliseconds(0)); }));
}

TEST(ProgramStorm, OneCopyStaysAndAllOthersEndWithCode0)
{
    const int rounds = stressed(1, 20);
    const int copyCount = stressed(12, 50);
    SetEnvironmentVariableW(L"KEELBASE_LOG_LEVEL", L"7");
    int answering = 0;
    int ended = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        clearLogs();
        const ULONGLONG start = GetTickCount64();
        std::vector<ChildProcess> copies;
        for (int i = 0; i < copyCount; ++i)
            copies.emplace_back(programPath(), std::vector<std::wstring>{},
                                ChildOptions{true, false});
        ASSERT_TRUE(std::all_of(copies.begin(), copies.end(),
                                [](const ChildProcess& copy) { return copy.started(); }));
        ASSERT_TRUE(becomesTrue([&copies] { return stillRunning(copies) <= 1; }))
            << stillRunning(copies) << " copies still run";
        const ULONGLONG took = GetTickCount64() - start;

        ASSERT_EQ(stillRunning(copies), 1u);
        std::vector<HWND> windows;
        ASSERT_TRUE(becomesTrue([&windows] { return !(windows = programWindows()).empty(); }));
        ASSERT_EQ(windows.size(), 1u);
        const Server server = serverOf(windows.front());
        std::printf("round %d: %d copies, the others ended after %llu ms, server %s\n", round + 1,
                    copyCount, took, describe(server));
        std::fflush(stdout);
        ASSERT_NE(server, Server::neither);
        ++(server == Server::answers ? answering : ended);

        PostMessageW(windows.front(), WM_CLOSE, 0, 0);
        for (const ChildProcess& copy : copies)
            ASSERT_EQ(copy.waitForExit(), 0u);
        ASSERT_TRUE(programWindows().empty());
    }
    std::printf("%d rounds: %d first copies answer, %d ended by an early client\n", rounds,
                answering, ended);
    RecordProperty("answering", answering);
    RecordProperty("ended_by_early_client", ended);
}

} // namespace
