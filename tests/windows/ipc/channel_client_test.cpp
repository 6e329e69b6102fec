// The channel's client end against servers that behave unlike the program.

#include "support/keelbase/keelbase.h"
#include "tests/support/import_slot.h"
#include "tests/support/recorded_log.h"
#include "tests/windows/ipc/channel_client.h"
#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/support/unique_name.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

using namespace ipctest;

namespace {

// A foreign server on its own thread; `talk` runs once a client has connected.
class ServerThread
{
public:
    explicit ServerThread(std::function<void(StrangeServer&)> talk)
        : thread([this, talk = std::move(talk)] {
              if (server.waitForClient())
                  talk(server);
          })
    {}
    ~ServerThread()
    {
        if (!joined)
            join();
    }
    void join()
    {
        // Releases the thread if no client has come.
        Stranger unblocking(milliseconds(0));
        thread.join();
        joined = true;
    }
    bool created() const { return server.created(); }

private:
    StrangeServer server;
    std::thread thread;
    bool joined = false;
};

TEST(ChannelClient, WithoutAServerConnectingFailsAndSendingReturns10)
{
    Client client;
    EXPECT_EQ(client.channel.connectToServer(), ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(client.channel.isPipeOpen());
    EXPECT_EQ(client.channel.sendMessage("text"), 10);
    // A missing pipe takes precedence over a text that is too long.
    EXPECT_EQ(client.channel.sendMessage(std::string(70000, 'x')), 10);
}

// The beginnings of the messages that a futile attempt to connect logs.
std::vector<std::string> loggedByConnecting()
{
    Client client;
    const testing_support::RecordedLog log;
    EXPECT_NE(client.channel.connectToServer(), 0);
    std::vector<std::string> texts;
    for (const Keelbase::LogRecord& record : log.records())
        texts.push_back(record.text.substr(0, record.text.find(" failed: ")));
    return texts;
}

BOOL WINAPI refuseComputerName(LPWSTR, LPDWORD)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

TEST(ChannelClient, ConnectingLogsExactlyTheCallsThatFailed)
{
    EXPECT_EQ(loggedByConnecting(), std::vector<std::string>{"CreateFileW"});

    const ReplacedImport refused("GetComputerNameW", &refuseComputerName);
    ASSERT_NE(refused.original(), nullptr);
    EXPECT_EQ(loggedByConnecting(), (std::vector<std::string>{"GetComputerNameW", "CreateFileW"}));
}

TEST(ChannelClient, SendingBeforeConnectingReturns10)
{
    Client client;
    EXPECT_EQ(client.channel.sendMessage("text"), 10);
}

TEST(ChannelClient, FirstInstanceSendsNothingAndReturns0)
{
    Bytes received = {1};
    ServerThread server([&received](StrangeServer& pipe) { received = pipe.read(); });
    ASSERT_TRUE(server.created());
    {
        Client client;
        ASSERT_EQ(client.connect(), 0);
        client.channel.firstInstance = true;
        EXPECT_EQ(client.channel.sendMessage("text"), 0);
        EXPECT_EQ(client.channel.sendMessage(std::string(70000, 'x')), 0);
    }
    server.join();
    EXPECT_EQ(received, Bytes()); // the client disconnected without a message
}

TEST(ChannelClient, RequestIsOneFrameWithTheSendersProcessId)
{
    Bytes received;
    ServerThread server([&received](StrangeServer& pipe) {
        received = pipe.read();
        pipe.write(frame(1, "yes"));
    });
    EXPECT_EQ(exchange("/app X"), (Exchange{0, "yes"}));
    server.join();
    EXPECT_EQ(received, frame(GetCurrentProcessId(), "/app X"));
}

TEST(ChannelClient, AnswerNeedsTenBytes)
{
    for (const std::size_t size :
         {std::size_t{1}, std::size_t{8}, std::size_t{9}, std::size_t{10}, std::size_t{12}}) {
        Bytes answer = frame(1, "yes");
        answer.resize(size);
        ServerThread server([&answer](StrangeServer& pipe) {
            pipe.read();
            pipe.write(answer);
            pipe.read(); // until the client disconnects
        });
        ASSERT_TRUE(server.created());
        const std::string expected = size > 9 ? std::string("yes").substr(0, size - 9) : "";
        EXPECT_EQ(exchange("text"), (Exchange{0, expected})) << size;
        server.join();
    }
}

TEST(ChannelClient, HeaderOfAnAnswerIsIgnored)
{
    ServerThread server([](StrangeServer& pipe) {
        pipe.read();
        pipe.write(Bytes{9, 9, 9, 9, 9, 9, 9, 9, 9, 'o', 'k'});
        pipe.read();
    });
    EXPECT_EQ(exchange("text"), (Exchange{0, "ok"}));
    server.join();
}

// TransactNamedPipe needs a message pipe.
TEST(ChannelClient, BytePipeReturns230)
{
    const win32::FileHandle server(
        CreateNamedPipeW(pipePath, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 1000, 1000, 0, nullptr));
    ASSERT_TRUE(server);
    Client client;
    ASSERT_EQ(client.connect(), 0);
    EXPECT_EQ(client.channel.sendMessage("text"), ERROR_BAD_PIPE);
}

// The channel's own client end in this process, recognised by `size` waiting bytes.
HANDLE pipeWithWaitingBytes(DWORD size)
{
    for (std::uintptr_t value = 4; value < 0x4000; value += 4) {
        const auto handle = reinterpret_cast<HANDLE>(value);
        DWORD waiting = 0;
        DWORD flags = 0;
        if (GetFileType(handle) == FILE_TYPE_PIPE &&
            GetNamedPipeInfo(handle, &flags, nullptr, nullptr, nullptr) &&
            PeekNamedPipe(handle, nullptr, 0, nullptr, &waiting, nullptr) && waiting == size &&
            (flags & PIPE_SERVER_END) == 0)
            return handle;
    }
    return INVALID_HANDLE_VALUE;
}

// Reads `size` waiting bytes in the client's place.
void readWaitingBytes(DWORD size)
{
    Bytes bytes(size);
    DWORD read = 0;
    EXPECT_TRUE(ReadFile(pipeWithWaitingBytes(size), bytes.data(), size, &read, nullptr));
}

// Replaces the log, and calls `failed` on the sending thread after each failed transaction, before
// the pause that follows.
class FailedTransactions : public Keelbase::ILogger
{
public:
    static std::shared_ptr<FailedTransactions> watch(std::function<void()> failed)
    {
        auto watcher = std::make_shared<FailedTransactions>();
        watcher->failed = std::move(failed);
        Keelbase::setLogger(watcher);
        return watcher;
    }

    int level() const noexcept override { return Keelbase::levelDetail; }
    void write(const Keelbase::LogRecord& record) noexcept override
    {
        if (record.text.rfind("TransactNamedPipe failed", 0) != 0)
            return;
        times.push_back(GetTickCount64());
        failed();
    }

    std::vector<ULONGLONG> times;

private:
    std::function<void()> failed;
};

// An unsolicited message makes every transaction fail until it is read.
class UnaskedMessage : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.created());
        ASSERT_EQ(client.connect(), 0);
        ASSERT_TRUE(written.wait());
    }

    const Bytes unasked = frame(1, "too early");
    const NamedEvent written{uniqueName(L"tessera_ipc_written")};
    std::atomic<int> requests{0};
    ServerThread server{[this](StrangeServer& pipe) {
        pipe.write(unasked);
        written.set();
        while (!pipe.read().empty()) {
            ++requests;
            pipe.write(frame(1, "in time"));
        }
    }};
    Client client;
};

TEST_F(UnaskedMessage, IsNotReturnedAsTheAnswer)
{
    EXPECT_EQ(client.channel.sendMessage("text"), ERROR_PIPE_BUSY);
    EXPECT_EQ(client.channel.getAnswer(), "");
    client.channel.close();
    server.join();
    EXPECT_EQ(requests, 0);
}

TEST_F(UnaskedMessage, ErrorOfAnEarlierAttemptIsReturnedEvenIfALaterOneSucceeds)
{
    const auto failures =
        FailedTransactions::watch([this] { readWaitingBytes(static_cast<DWORD>(unasked.size())); });
    EXPECT_EQ(client.channel.sendMessage("text"), ERROR_PIPE_BUSY);
    Keelbase::setLogger(nullptr);
    EXPECT_EQ(failures->times.size(), 1u);
    EXPECT_EQ(client.channel.getAnswer(), "in time");
    client.channel.close();
    server.join();
    EXPECT_EQ(requests, 1);
}

// The server's answers are too long for the client, which makes each transaction fail. The test
// reads the rest of an answer, which would otherwise disturb the next transaction.
TEST(ChannelClient, TriesSevenTransactionsWithPausesBetweenThem)
{
    constexpr std::size_t tooMuch = 10;
    constexpr ULONGLONG pause = 300; // ms
    std::vector<Bytes> requests;
    ServerThread server([&requests](StrangeServer& pipe) {
        for (Bytes request = pipe.read(); !request.empty(); request = pipe.read()) {
            requests.push_back(request);
            pipe.write(Bytes(65535 + tooMuch, 'x'));
        }
    });
    Client client;
    ASSERT_EQ(client.connect(), 0);
    const auto failures = FailedTransactions::watch([] { readWaitingBytes(tooMuch); });
    const ULONGLONG start = GetTickCount64();
    EXPECT_EQ(client.channel.sendMessage("text"), ERROR_MORE_DATA);
    const ULONGLONG took = GetTickCount64() - start;
    Keelbase::setLogger(nullptr);
    client.channel.close();
    server.join();

    EXPECT_EQ(requests, std::vector<Bytes>(7, frame(GetCurrentProcessId(), "text")));
    ASSERT_EQ(failures->times.size(), 7u);
    for (std::size_t i = 1; i < failures->times.size(); ++i)
        EXPECT_GE(failures->times[i] - failures->times[i - 1], pause) << i;
    EXPECT_GE(took, 6 * pause);
}

// The best of several measurements: on a busy machine a single one may take longer than a pause.
TEST(ChannelClient, DoesNotPauseAfterTheLastAttempt)
{
    constexpr ULONGLONG pause = 300; // ms
    ULONGLONG best = pause;
    for (int i = 0; i < 5 && best >= pause / 2; ++i) {
        ServerThread server([](StrangeServer& pipe) { pipe.hangUp(); });
        Client client;
        ASSERT_EQ(client.connect(), 0);
        const auto failures = FailedTransactions::watch([] {});
        EXPECT_NE(client.channel.sendMessage("text"), 0);
        const ULONGLONG end = GetTickCount64();
        Keelbase::setLogger(nullptr);
        ASSERT_EQ(failures->times.size(), 7u);
        best = std::min(best, end - failures->times.back());
    }
    EXPECT_LT(best, pause / 2);
}

// The best of several measurements: on a busy machine a single one may take longer than a pause.
TEST(ChannelClient, StopRequestEndsThePauseImmediately)
{
    constexpr ULONGLONG pause = 300; // ms
    ULONGLONG best = pause;
    for (int i = 0; i < 10 && best >= pause / 2; ++i) {
        const NamedEvent hungUp(uniqueName(L"tessera_ipc_hung_up"));
        ServerThread server([&hungUp](StrangeServer& pipe) {
            pipe.read();
            pipe.hangUp();
            hungUp.set();
        });
        Client client;
        ASSERT_EQ(client.connect(), 0);
        client.stopOn(hungUp.handle());
        const ULONGLONG start = GetTickCount64();
        EXPECT_NE(client.channel.sendMessage("text"), 0);
        best = std::min(best, GetTickCount64() - start);
    }
    EXPECT_LT(best, pause / 2);
}

TEST(ChannelClient, SendsNothingAfterAStopRequest)
{
    Bytes received = {1};
    ServerThread server([&received](StrangeServer& pipe) { received = pipe.read(); });
    {
        Client client;
        ASSERT_EQ(client.connect(), 0);
        client.channel.requestStop();
        EXPECT_EQ(client.channel.sendMessage("text"), 0);
    }
    server.join();
    EXPECT_EQ(received, Bytes());
}

std::wstring awaitedPipe;
DWORD longestWait;

BOOL WINAPI findPipe(const wchar_t* name, DWORD milliseconds)
{
    awaitedPipe = name;
    longestWait = milliseconds;
    SetLastError(ERROR_SEM_TIMEOUT); // any code
    return TRUE;
}

TEST(ChannelClient, ConnectsOnlyIfWaitingForTheBareNameFails)
{
    const ServerThread server([](StrangeServer&) {});
    Client client;
    {
        const ReplacedImport waited("WaitNamedPipeW", &findPipe);
        EXPECT_EQ(client.channel.connectToServer(), ERROR_SEM_TIMEOUT);
    }
    EXPECT_FALSE(client.channel.isPipeOpen());
    EXPECT_EQ(awaitedPipe, L"DF467A07-9FF8-46A9-B701-2D3ADDD9BE3B_Uninstall");
    EXPECT_EQ(longestWait, 15000U);
    EXPECT_EQ(client.connect(), 0);
}

TEST(ChannelClient, CloseDropsTheConnectionAndMayBeRepeated)
{
    Bytes received = {1};
    ServerThread server([&received](StrangeServer& pipe) { received = pipe.read(); });
    Client client;
    ASSERT_EQ(client.connect(), 0);
    client.channel.close();
    EXPECT_FALSE(client.channel.isPipeOpen());
    server.join();
    EXPECT_EQ(received, Bytes());
    client.channel.close();
    EXPECT_EQ(client.channel.sendMessage("text"), 10);
}

TEST(ChannelClient, MayReconnectAfterClose)
{
    Client client;
    for (const char* text : {"one", "two"}) {
        ServerThread server([](StrangeServer& pipe) {
            pipe.write(pipe.read());
            pipe.read();
        });
        ASSERT_TRUE(server.created());
        ASSERT_EQ(client.connect(), 0);
        EXPECT_EQ(client.channel.sendMessage(text), 0);
        EXPECT_EQ(client.channel.getAnswer(), text);
        client.channel.close();
        server.join();
    }
}

} // namespace
