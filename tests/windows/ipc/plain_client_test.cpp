// The channel used by an independent program in C.

#include "tests/windows/ipc/serving_peer.h"
#include "tests/windows/support/child_process.h"

#include <gtest/gtest.h>

using namespace ipctest;

namespace {

ChildProcess plainClient(const std::wstring& text)
{
    return ChildProcess(siblingProgram(L"plain_client"), {text}, {false, true});
}

TEST(PlainClient, ExchangesFramesWithTheServer)
{
    ServingPeer peer;
    ASSERT_TRUE(peer.ready());
    for (const wchar_t* text : {L"hello", L"with spaces and \"quotes\"", L"again"}) {
        ChildProcess client = plainClient(text);
        ASSERT_EQ(client.waitForExit(), 0u);
        const std::wstring wide = text;
        EXPECT_EQ(client.output(), std::string(wide.begin(), wide.end()));
    }
    EXPECT_EQ(peer.stop(), 0u);
}

TEST(PlainClient, DistinguishesNoServerFromNoAnswer)
{
    EXPECT_EQ(plainClient(L"text").waitForExit(), 2u);
    ServingPeer peer;
    ASSERT_TRUE(peer.ready());
    EXPECT_EQ(plainClient(L"#empty").waitForExit(), 1u);
    EXPECT_EQ(peer.stop(), 0u);
}

} // namespace
