#include "ui/common/sys/thread.h"

#include <gtest/gtest.h>

#include <atomic>

namespace {

constexpr DWORD patience = 60000; // ms

class Body : public win32::CThreadFunction
{
public:
    void run(int given) override
    {
        argument = given;
        thread = GetCurrentThreadId();
        ++runs;
        WaitForSingleObject(gate.get(), patience);
    }

    std::atomic<int> argument{0};
    std::atomic<DWORD> thread{0};
    std::atomic<int> runs{0};
    win32::KernelHandle gate{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

TEST(BaseThread, RunsItsFunctionOnAnotherThreadWithItsNumber)
{
    Body body;
    SetEvent(body.gate.get());
    win32::CBaseThread<100> owner;
    owner.setFunction(&body);
    ASSERT_EQ(owner.start(), 0);
    owner.waitUntilFinished();
    EXPECT_EQ(body.argument, 100);
    EXPECT_NE(body.thread, GetCurrentThreadId());
}

TEST(BaseThread, WithoutAFunctionDoesNotStart)
{
    win32::CBaseThread<100> owner;
    EXPECT_EQ(owner.start(), 87);
    owner.waitUntilFinished();
}

TEST(BaseThread, IsBusyWhileItRunsAndMayBeRestartedAfterwards)
{
    Body body;
    win32::CBaseThread<100> owner;
    owner.setFunction(&body);
    EXPECT_FALSE(owner.isRunning());
    ASSERT_EQ(owner.start(), 0);
    EXPECT_TRUE(owner.isRunning());
    EXPECT_EQ(owner.start(), 170);
    EXPECT_EQ(owner.start(), 170);
    SetEvent(body.gate.get());
    owner.waitUntilFinished();
    EXPECT_FALSE(owner.isRunning());
    EXPECT_EQ(owner.start(), 0);
    owner.waitUntilFinished();
    EXPECT_EQ(body.runs, 2);
}

} // namespace
