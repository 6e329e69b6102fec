#include "tests/support/vtable_index.h"
#include "ui/common/sys/interprocess_communication_win.h"
#include "ui/common/sys/thread.h"
#include "ui/common/sys/thread_start.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <process.h>

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

#ifdef __GNUC__ // whose object layout vtableIndex knows; a destructor takes two slots
TEST(ChannelInterfaces, KeepTheirVirtualFunctionsInOrder)
{
    using testing_support::vtableIndex;
    EXPECT_EQ(vtableIndex(&win32::CThreadFunction::run), 2U);
    EXPECT_EQ(vtableIndex(&IMessageFromOtherProcess::onMessageFromOtherProcess), 2U);
}
#endif

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

std::atomic<bool> lateThreadRuns{false};
std::thread waker;
unsigned stackSizeGiven = 1;
unsigned flagsGiven = 1;

// Begins a thread that runs only some time later.
std::uintptr_t beginLate(void* security, unsigned stackSize, unsigned(__stdcall* entry)(void*),
                         void* argument, unsigned flags, unsigned* id)
{
    stackSizeGiven = stackSize;
    flagsGiven = flags;
    const std::uintptr_t begun =
        _beginthreadex(security, stackSize, entry, argument, CREATE_SUSPENDED, id);
    waker = std::thread([begun] {
        Sleep(200);
        lateThreadRuns = true;
        ResumeThread(reinterpret_cast<HANDLE>(begun));
    });
    return begun;
}

TEST(BaseThread, StartReturnsWhenTheThreadRunsThoughOneRanBefore)
{
    Body body;
    SetEvent(body.gate.get());
    win32::CBaseThread<100> owner;
    owner.setFunction(&body);
    ASSERT_EQ(owner.start(), 0);
    owner.waitUntilFinished();
    win32::setBeginThread(&beginLate);
    EXPECT_EQ(owner.start(), 0);
    EXPECT_TRUE(lateThreadRuns);
    win32::setBeginThread(nullptr);
    waker.join();
    owner.waitUntilFinished();
    EXPECT_EQ(stackSizeGiven, 0U);
    EXPECT_EQ(flagsGiven, 0U);
}

} // namespace
