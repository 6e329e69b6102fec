// Starting and stopping the channel's server end.

#include "tests/support/recorded_log.h"
#include "tests/windows/ipc/channel_client.h"
#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/ipc/serving_peer.h"
#include "tests/windows/support/unique_name.h"
#include "ui/common/sys/thread_start.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <future>
#include <iterator>
#include <new>
#include <stdexcept>

using namespace ipctest;

namespace {

// Echoes each text; with a `gate`, waits for it in the delivery.
class Receiver : public IMessageFromOtherProcess
{
public:
    void onMessageFromOtherProcess(unsigned long, const std::string& text) override
    {
        if (gate) {
            entered.set();
            gate->wait();
        }
        answerText = text;
    }

    NamedEvent entered{uniqueName(L"tessera_ipc_entered")};
    const NamedEvent* gate = nullptr;
};

struct Server
{
    Server()
    {
        channel.claimMutex();
        channel.receiver = &receiver;
    }

    int start() { return serveForSure(channel); }

    Receiver receiver;
    CInterprocessCommunicationWin channel;
};

// True when `work` ends in time. Otherwise the process ends, since a hanging thread cannot be
// joined.
bool endsInTime(std::function<void()> work, milliseconds deadline = milliseconds(20000))
{
    auto done = std::async(std::launch::async, std::move(work));
    if (done.wait_for(deadline) == std::future_status::ready)
        return true;
    std::fprintf(stderr, "hangs\n");
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), 3);
    return false;
}

ChildProcess sender(const std::wstring& text)
{
    return ChildProcess(siblingProgram(L"ipc_peer"), {L"send", text}, {true, true});
}

void expectNoPipe(const CInterprocessCommunicationWin& channel)
{
    EXPECT_FALSE(channel.isPipeOpen());
    const Stranger nobody(milliseconds(0));
    EXPECT_EQ(nobody.error(), DWORD{ERROR_FILE_NOT_FOUND});
}

TEST(ChannelServer, DoesNotStartWithoutAClaimedMutex)
{
    CInterprocessCommunicationWin channel;
    EXPECT_EQ(channel.createServer(), 87);
    expectNoPipe(channel);
}

// A fake of _beginthreadex that fails.
std::uintptr_t beginNoThread(void*, unsigned, unsigned(__stdcall*)(void*), void*, unsigned,
                             unsigned*)
{
    return 0;
}

TEST(ChannelServer, ThreadThatDoesNotStartLeavesNoPipeBehind)
{
    Server server;
    win32::setBeginThread(&beginNoThread);
    {
        const testing_support::RecordedLog log;
        EXPECT_EQ(server.channel.createServer(), 10);
        ASSERT_EQ(log.records().size(), 1U);
        EXPECT_EQ(log.records().front().text.rfind("_beginthreadex failed: ", 0), 0U);
    }
    win32::setBeginThread(nullptr);
    expectNoPipe(server.channel);
    // Another start succeeds.
    ASSERT_EQ(server.start(), 0);
    EXPECT_EQ(Stranger().transact(frame(1, "text")), frame(GetCurrentProcessId(), "text"));
}

TEST(ChannelServer, SecondStartIsBusyAndKeepsTheConnectedClient)
{
    Server server;
    ASSERT_EQ(server.start(), 0);
    Stranger connected;
    ASSERT_TRUE(connected.connected());
    EXPECT_EQ(server.channel.createServer(), 170);
    EXPECT_TRUE(server.channel.isPipeOpen());
    // There is no second instance of the pipe, and the first one's client is served.
    const Stranger other(milliseconds(0));
    EXPECT_EQ(other.error(), DWORD{ERROR_PIPE_BUSY});
    EXPECT_EQ(connected.transact(frame(1, "text")), frame(GetCurrentProcessId(), "text"));
}

TEST(ChannelServer, SecondStartIsBusyAndKeepsServing)
{
    Server server;
    ASSERT_EQ(server.start(), 0);
    EXPECT_EQ(server.channel.createServer(), 170);
    ChildProcess client = sender(L"still there");
    EXPECT_EQ(client.waitForExit(), 0u);
    EXPECT_EQ(client.output(), "still there");
    EXPECT_TRUE(endsInTime([&] { server.channel.close(); }));
}

TEST(ChannelServer, MayBeRestartedAfterClose)
{
    Server server;
    for (const wchar_t* text : {L"one", L"two"}) {
        ASSERT_EQ(server.start(), 0);
        ChildProcess client = sender(text);
        EXPECT_EQ(client.waitForExit(), 0u);
        EXPECT_TRUE(endsInTime([&] { server.channel.close(); }));
        EXPECT_FALSE(server.channel.isPipeOpen());
    }
}

TEST(ChannelServer, FailureToOpenThePipeIsReturnedAndLogged)
{
    // A byte pipe has the name.
    const win32::FileHandle other(
        CreateNamedPipeW(pipePath, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 100, 100, 0, nullptr));
    ASSERT_TRUE(other);
    Server server;
    const testing_support::RecordedLog log;
    const int result = server.channel.createServer();
    EXPECT_TRUE(result == ERROR_ACCESS_DENIED || result == ERROR_PIPE_BUSY) << result;
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records().front().text.rfind("CreateNamedPipeW failed: ", 0), 0U);
    EXPECT_FALSE(server.channel.isPipeOpen());
    EXPECT_TRUE(endsInTime([&] { server.channel.close(); }));
}

TEST(ChannelServer, ExchangeThatTheReceiverEndsIsLoggedAsAnError)
{
    class Thrower : public IMessageFromOtherProcess
    {
        void onMessageFromOtherProcess(unsigned long, const std::string& text) override
        {
            if (text == "1")
                throw 1;
            throw std::runtime_error("out of " + text);
        }
    } receiver;
    CInterprocessCommunicationWin channel;
    channel.claimMutex();
    channel.receiver = &receiver;
    ASSERT_EQ(serveForSure(channel), 0);
    const testing_support::RecordedLog log(Keelbase::levelError);
    for (const char* text : {"paper", "1"})
        EXPECT_EQ(Stranger().transact(frame(1, text)), Bytes());
    channel.close();
    std::vector<std::string> texts;
    for (const Keelbase::LogRecord& record : log.records())
        texts.push_back(record.text);
    EXPECT_EQ(texts,
              (std::vector<std::string>{"An exchange was given up: out of paper",
                                        "An exchange was given up: exception of an unknown type"}));
}

TEST(ChannelServerClose, IdleTwiceAndThenDestroyed)
{
    EXPECT_TRUE(endsInTime([] {
        Server server;
        EXPECT_EQ(server.channel.createServer(), 0);
        server.channel.close();
        server.channel.close();
        EXPECT_FALSE(server.channel.isPipeOpen());
    }));
    Stranger nobody(milliseconds(0));
    EXPECT_EQ(nobody.error(), DWORD{ERROR_FILE_NOT_FOUND});
}

TEST(ChannelServerClose, BeforeAnythingWasOpened)
{
    EXPECT_TRUE(endsInTime([] {
        CInterprocessCommunicationWin channel;
        channel.close();
    }));
}

TEST(ChannelServerClose, WhileASilentClientIsConnected)
{
    Server server;
    ASSERT_EQ(server.start(), 0);
    Stranger silent;
    ASSERT_TRUE(silent.connected());
    EXPECT_TRUE(endsInTime([&] { server.channel.close(); }));
    EXPECT_EQ(silent.read(), Bytes());
    EXPECT_NE(silent.error(), 0u);
}

TEST(ChannelServerClose, DuringADeliveryWaitsForItsEnd)
{
    Server server;
    const NamedEvent gate(uniqueName(L"tessera_ipc_gate"));
    server.receiver.gate = &gate;
    ASSERT_EQ(server.start(), 0);
    ChildProcess client = sender(L"text");
    ASSERT_TRUE(server.receiver.entered.wait());

    auto closed = std::async(std::launch::async, [&] { server.channel.close(); });
    EXPECT_EQ(closed.wait_for(milliseconds(300)), std::future_status::timeout);
    gate.set();
    EXPECT_TRUE(endsInTime([&] { closed.wait(); }));
    client.waitForExit();
}

// A stop requested during a delivery.
class StopDuringADelivery : public testing::Test
{
protected:
    void SetUp() override
    {
        server.receiver.gate = &gate;
        ASSERT_EQ(server.start(), 0);
        answer =
            std::async(std::launch::async, [] { return Stranger().transact(frame(1, "text")); });
        ASSERT_TRUE(server.receiver.entered.wait());
    }

    Server server;
    const NamedEvent gate{uniqueName(L"tessera_ipc_gate")};
    std::future<Bytes> answer;
};

TEST_F(StopDuringADelivery, NoAnswerIsWrittenAfterIt)
{
    server.channel.requestStop();
    gate.set();
    EXPECT_EQ(answer.get(), Bytes());
    EXPECT_EQ(server.receiver.answerText, "text"); // the answer that is not written
}

TEST_F(StopDuringADelivery, IsNotRevokedByASecondStart)
{
    server.channel.requestStop();
    EXPECT_EQ(server.channel.createServer(), 170);
    gate.set();
    EXPECT_EQ(answer.get(), Bytes());
}

TEST_F(StopDuringADelivery, WithoutOneTheAnswerIsWritten)
{
    gate.set();
    EXPECT_EQ(answer.get(), frame(GetCurrentProcessId(), "text"));
}

TEST(ChannelServerClose, DestructorStopsAServingChannel)
{
    EXPECT_TRUE(endsInTime([] {
        for (int i = 0; i < 50; ++i) {
            Server server;
            EXPECT_EQ(server.channel.createServer(), 0);
        }
    }));
}

// The system writes the result of pending I/O to the channel's memory; that must not happen after
// the channel's end.
TEST(ChannelServerClose, NothingIsWrittenToTheMemoryOfADestroyedChannel)
{
    constexpr int count = 300;
    struct Place
    {
        alignas(CInterprocessCommunicationWin)
            std::uint8_t bytes[sizeof(CInterprocessCommunicationWin)];
    };
    Receiver receiver;
    std::vector<Place> places(count);
    ASSERT_TRUE(endsInTime([&] {
        for (Place& place : places) {
            auto* channel = new (place.bytes) CInterprocessCommunicationWin;
            channel->claimMutex();
            channel->receiver = &receiver;
            EXPECT_EQ(channel->createServer(), 0);
            channel->~CInterprocessCommunicationWin();
            std::memset(place.bytes, 0xab, sizeof(place.bytes));
        }
    }));
    for (const Place& place : places)
        ASSERT_TRUE(std::all_of(std::begin(place.bytes), std::end(place.bytes),
                                [](std::uint8_t byte) { return byte == 0xab; }));
}

TEST(ChannelServerThread, ClientBeforeTheFirstWaitEndsIt)
{
    ServingPeer peer({L"client-before-first-wait"});
    ASSERT_TRUE(peer.ready());
    // That client is disconnected; it does not wait for an answer until the process ends.
    EXPECT_TRUE(peer.earlyClientIsLetGo());
    // The one pipe instance stays with the early client, and nobody serves it.
    Client client;
    EXPECT_EQ(client.connect(milliseconds(2000)), ERROR_PIPE_BUSY);
    // Closing does not hang, although the thread has ended.
    EXPECT_EQ(peer.stop(), 0u);
}

} // namespace
