// Exchanges between the channel's client in this process and its server in another one.

#include "tests/windows/ipc/channel_client.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/ipc/serving_peer.h"
#include "tests/windows/ipc/stress.h"
#include "ui/common/sys/interprocess_communication_win.h"

#include <gtest/gtest.h>

#include <sstream>

#include <aclapi.h>

using namespace ipctest;

namespace {

std::string everyByteRepeated(std::size_t size)
{
    std::string text(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        text[i] = static_cast<char>(i % 256);
    return text;
}

class ChannelExchange : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(peer.ready()); }
    void TearDown() override { EXPECT_EQ(peer.stop(), 0u); }

    ServingPeer peer;
};

TEST_F(ChannelExchange, AnswerArrives)
{
    EXPECT_EQ(exchange("hello"), (Exchange{0, "hello"}));
}

TEST_F(ChannelExchange, EveryByteArrivesUnchangedBothWays)
{
    const std::string text = everyByteRepeated(512);
    EXPECT_EQ(exchange(text), (Exchange{0, text}));
}

TEST_F(ChannelExchange, LargestTextAndAnswerArriveCompletely)
{
    const std::string text = everyByteRepeated(65526);
    EXPECT_EQ(exchange(text), (Exchange{0, text}));
}

TEST_F(ChannelExchange, LongerTextIsRefusedAndNothingIsSent)
{
    ASSERT_EQ(exchange("first"), (Exchange{0, "first"}));
    Client client;
    ASSERT_EQ(client.connect(), 0);
    EXPECT_EQ(client.channel.sendMessage(std::string(65527, 'x')), 111);
    EXPECT_EQ(client.channel.getAnswer(), "");
    // The connection is still usable: the server received nothing.
    EXPECT_EQ(client.channel.sendMessage("#deliveries"), 0);
    EXPECT_EQ(client.channel.getAnswer(), "2");
}

TEST_F(ChannelExchange, LargestAnswerIsWrittenAndALongerOneIsNot)
{
    EXPECT_EQ(exchange("#size 65526").answer.size(), 65526u);
    const Exchange dropped = exchange("#size 65527");
    EXPECT_NE(dropped.result, 0);
    EXPECT_EQ(dropped.answer, "");
}

TEST_F(ChannelExchange, MessageWithoutAnAnswerFailsAfterSevenAttemptsButIsDeliveredOnce)
{
    const ULONGLONG start = GetTickCount64();
    const Exchange empty = exchange("#empty");
    EXPECT_GE(GetTickCount64() - start, 6u * 300u);
    EXPECT_NE(empty.result, 0);
    EXPECT_EQ(empty.answer, "");
    EXPECT_EQ(exchange("#deliveries").answer, "2");
}

TEST_F(ChannelExchange, ReceiverThatThrowsCostsOneAnswerAndNoMore)
{
    for (const char* text : {"#no memory", "#throw"}) {
        ASSERT_EQ(exchange("before"), (Exchange{0, "before"}));
        Stranger client;
        ASSERT_TRUE(client.connected());
        EXPECT_EQ(client.transact(frame(1, text)), Bytes()) << text;
        EXPECT_NE(client.error(), 0u);
        client.disconnect();
        EXPECT_EQ(exchange("after"), (Exchange{0, "after"})) << text;
    }
}

TEST_F(ChannelExchange, EachSendForgetsThePreviousAnswer)
{
    Client client;
    ASSERT_EQ(client.connect(), 0);
    ASSERT_EQ(client.channel.sendMessage("kept"), 0);
    ASSERT_EQ(client.channel.getAnswer(), "kept");
    client.channel.requestStop();
    EXPECT_EQ(client.channel.sendMessage("again"), 0);
    EXPECT_EQ(client.channel.getAnswer(), "");
}

TEST_F(ChannelExchange, ProcessIdArrivesWithItsLowerBytesSignExtended)
{
    struct Case
    {
        std::uint32_t sent;
        const char* delivered;
    };
    for (const Case& c : {Case{4740, "4484"}, Case{4736, "4480"}, Case{4660, "4660"},
                          Case{128, "4294967168"}, Case{0, "0"}}) {
        Stranger client;
        ASSERT_TRUE(client.connected());
        const Bytes answer = client.transact(frame(c.sent, "#pid"));
        EXPECT_EQ(std::string(answer.begin() + 9, answer.end()), c.delivered) << c.sent;
    }
}

TEST_F(ChannelExchange, AnswerFrameCarriesTheServersProcessIdUnsigned)
{
    Stranger client;
    ASSERT_TRUE(client.connected());
    EXPECT_EQ(client.transact(frame(1, "text")), frame(peer.pid(), "text"));
}

TEST_F(ChannelExchange, TooShortRequestIsNotDeliveredButGetsThePreviousAnswer)
{
    ASSERT_EQ(exchange("previous").answer, "previous");
    for (std::size_t size = 0; size < 9; ++size) {
        Stranger client;
        ASSERT_TRUE(client.connected());
        Bytes request = frame(1, "");
        request.resize(size);
        EXPECT_EQ(client.transact(request), frame(peer.pid(), "previous")) << size;
    }
    EXPECT_EQ(exchange("#deliveries").answer, "2");
}

TEST_F(ChannelExchange, TooShortRequestGetsNothingWhenThePreviousAnswerIsEmpty)
{
    Stranger client;
    ASSERT_TRUE(client.connected());
    EXPECT_EQ(client.transact({1, 0, 0, 0, 8, 0, 0, 0}), Bytes());
    EXPECT_NE(client.error(), 0u);
}

TEST_F(ChannelExchange, HeaderWithoutTextIsDelivered)
{
    {
        Stranger client;
        ASSERT_TRUE(client.connected());
        client.transact(frame(1, ""));
    }
    EXPECT_EQ(exchange("#deliveries").answer, "2");
}

TEST_F(ChannelExchange, OnlyTheProcessIdOfTheHeaderIsRead)
{
    Bytes request = frame(4660, "#pid");
    for (std::size_t i = 0; i < 5; ++i)
        request[i] = 0xab;
    Stranger client;
    ASSERT_TRUE(client.connected());
    EXPECT_EQ(client.transact(request), frame(peer.pid(), "4660"));
}

TEST_F(ChannelExchange, OneConnectionCarriesOneExchange)
{
    Stranger client;
    ASSERT_TRUE(client.connected());
    ASSERT_EQ(client.transact(frame(1, "one")), frame(peer.pid(), "one"));
    EXPECT_EQ(client.transact(frame(1, "two")), Bytes());
    EXPECT_NE(client.error(), 0u);
}

TEST_F(ChannelExchange, PipeIsBusyForASecondClient)
{
    Stranger first;
    ASSERT_TRUE(first.connected());
    Client second;
    EXPECT_EQ(second.channel.connectToServer(), ERROR_PIPE_BUSY);
    EXPECT_EQ(second.channel.sendMessage("text"), ERROR_BAD_ENVIRONMENT);
}

TEST_F(ChannelExchange, PipeIsAMessagePipeOpenToEveryAccount)
{
    Stranger client;
    ASSERT_TRUE(client.connected());
    DWORD flags = 0;
    DWORD outSize = 0;
    DWORD inSize = 0;
    DWORD instances = 0;
    ASSERT_TRUE(GetNamedPipeInfo(client.handle(), &flags, &outSize, &inSize, &instances));
    EXPECT_TRUE(flags & PIPE_TYPE_MESSAGE);
    EXPECT_EQ(outSize, 65535u);
    EXPECT_EQ(inSize, 65535u);
    EXPECT_GE(instances, DWORD{PIPE_UNLIMITED_INSTANCES}); // Wine returns -1

    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_EQ(GetSecurityInfo(client.handle(), SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                              nullptr, &list, nullptr, &descriptor),
              DWORD{ERROR_SUCCESS});
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    EXPECT_TRUE(GetSecurityDescriptorControl(descriptor, &control, &revision));
    EXPECT_TRUE(control & SE_DACL_PRESENT);
    EXPECT_EQ(list, nullptr);
    LocalFree(descriptor);
}

TEST_F(ChannelExchange, ConcurrentProcessesEachGetTheirOwnAnswer)
{
    std::vector<ChildProcess> senders;
    for (int i = 0; i < 8; ++i)
        senders.emplace_back(siblingProgram(L"ipc_peer"),
                             std::vector<std::wstring>{L"send", L"text " + std::to_wstring(i)},
                             ChildOptions{true, true});
    for (std::size_t i = 0; i < senders.size(); ++i) {
        EXPECT_EQ(senders[i].waitForExit(), 0u) << i;
        EXPECT_EQ(senders[i].output(), "text " + std::to_string(i));
    }
}

TEST_F(ChannelExchange, ThousandsOfMessagesLeakNeitherHandlesNorMemory)
{
    struct Usage
    {
        long handles = 0;
        long kibibytes = 0;
    };
    const auto usage = [] {
        Usage now;
        std::istringstream(exchange("#usage").answer) >> now.handles >> now.kibibytes;
        return now;
    };
    const std::string text = everyByteRepeated(1000);
    Client client;
    const auto send = [&](int count) {
        for (int i = 0; i < count; ++i) {
            ASSERT_EQ(client.connect(), 0) << i;
            ASSERT_EQ(client.channel.sendMessage(text), 0) << i;
            ASSERT_EQ(client.channel.getAnswer(), text) << i;
            client.channel.close();
        }
    };
    constexpr int warmUp = 500;
    send(warmUp);
    const Usage before = usage();
    ASSERT_GT(before.handles, 0);
    ASSERT_GT(before.kibibytes, 0);
    send(stressed(2000, 10000) - warmUp);
    const Usage after = usage();
    EXPECT_EQ(after.handles, before.handles);
    // A leak of one text per message would be 1.4 MiB or more.
    EXPECT_LE(after.kibibytes, before.kibibytes + 256);
    RecordProperty("handles_before", std::to_string(before.handles));
    RecordProperty("handles_after", std::to_string(after.handles));
    RecordProperty("kib_before", std::to_string(before.kibibytes));
    RecordProperty("kib_after", std::to_string(after.kibibytes));
    std::printf("handles %ld -> %ld, memory %ld KiB -> %ld KiB\n", before.handles, after.handles,
                before.kibibytes, after.kibibytes);
}

} // namespace
