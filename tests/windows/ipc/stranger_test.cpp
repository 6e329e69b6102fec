// Foreign programs at the pipe: whatever they do, the next client is served.

#include "tests/windows/ipc/channel_client.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/ipc/serving_peer.h"
#include "tests/windows/ipc/stress.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace ipctest;

namespace {

Bytes randomBytes(std::size_t size, std::mt19937& random)
{
    Bytes bytes(size);
    std::generate(bytes.begin(), bytes.end(),
                  [&random] { return static_cast<std::uint8_t>(random()); });
    return bytes;
}

enum class Behaviour {
    silent,
    oneByte,
    eightBytes,
    randomBytes,
    largestMessage,
    largerThanTheBuffer,
    leavesBeforeTheAnswer,
    leavesAtOnce,
    twoMessages,
    count,
};

void behave(Stranger& stranger, Behaviour behaviour, std::mt19937& random)
{
    switch (behaviour) {
    case Behaviour::oneByte:
        stranger.transact({1});
        break;
    case Behaviour::eightBytes:
        stranger.transact(Bytes(8, 1));
        break;
    case Behaviour::randomBytes:
        stranger.transact(randomBytes(1 + random() % 2000, random));
        break;
    case Behaviour::largestMessage:
        stranger.transact(randomBytes(65535, random));
        break;
    case Behaviour::largerThanTheBuffer:
        // The server disconnects without reading the rest, possibly before all is written.
        stranger.write(randomBytes(65536 + random() % 4000, random));
        break;
    case Behaviour::leavesBeforeTheAnswer:
        stranger.write(frame(1, "an answer nobody waits for"));
        break;
    case Behaviour::twoMessages:
        stranger.write(frame(1, "one"));
        stranger.write(frame(1, "two"));
        break;
    case Behaviour::silent:
    case Behaviour::leavesAtOnce:
    case Behaviour::count:
        break;
    }
}

class StrangerAtThePipe : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(peer.ready());
        ASSERT_EQ(exchange("before").answer, "before");
    }
    void TearDown() override { EXPECT_EQ(peer.stop(), 0u); }

    void meet(Behaviour behaviour)
    {
        Stranger stranger;
        ASSERT_TRUE(stranger.connected()) << stranger.error();
        behave(stranger, behaviour, random);
    }

    ServingPeer peer;
    std::mt19937 random{20260102};
};

TEST_F(StrangerAtThePipe, SilentOneBlocksOthersOnlyWhileConnected)
{
    Stranger silent;
    ASSERT_TRUE(silent.connected());
    Client other;
    EXPECT_EQ(other.channel.connectToServer(), ERROR_PIPE_BUSY);
    silent.disconnect();
    EXPECT_EQ(exchange("after"), (Exchange{0, "after"}));
}

TEST_F(StrangerAtThePipe, TooShortMessagesAreNotDelivered)
{
    meet(Behaviour::oneByte);
    meet(Behaviour::eightBytes);
    EXPECT_EQ(exchange("#deliveries").answer, "2");
}

TEST_F(StrangerAtThePipe, LargestMessageIsDelivered)
{
    meet(Behaviour::largestMessage);
    EXPECT_EQ(exchange("#deliveries").answer, "3");
}

TEST_F(StrangerAtThePipe, MessageLargerThanTheBufferIsNotDelivered)
{
    meet(Behaviour::largerThanTheBuffer);
    EXPECT_EQ(exchange("#deliveries").answer, "2");
}

TEST_F(StrangerAtThePipe, MayLeaveBeforeTheAnswer)
{
    meet(Behaviour::leavesBeforeTheAnswer);
    EXPECT_EQ(exchange("after"), (Exchange{0, "after"}));
}

TEST_F(StrangerAtThePipe, OnlyTheFirstOfTwoMessagesIsDelivered)
{
    meet(Behaviour::twoMessages);
    EXPECT_EQ(exchange("#deliveries").answer, "3");
}

TEST_F(StrangerAtThePipe, ManyInRandomOrderLeaveTheServerServing)
{
    const int count = stressed(200, 1000);
    for (int i = 0; i < count; ++i) {
        const auto behaviour =
            static_cast<Behaviour>(random() % static_cast<unsigned>(Behaviour::count));
        SCOPED_TRACE(testing::Message() << i << ": behaviour " << static_cast<int>(behaviour));
        meet(behaviour);
        if (HasFatalFailure())
            return;
        if (i % 20 == 0) {
            ASSERT_EQ(exchange("still there"), (Exchange{0, "still there"}));
        }
    }
    EXPECT_EQ(exchange("after"), (Exchange{0, "after"}));
}

} // namespace
