#include "support/keelbase/platform.h"
#include "support/win32/unique_handle.h"
#include "tests/support/import_slot.h"
#include "tests/windows/support/unique_name.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>

using Keelbase::WriteGate;

namespace {

using Clock = std::chrono::steady_clock;

Clock::duration timeToEnter(WriteGate& gate)
{
    const Clock::time_point start = Clock::now();
    gate.enter();
    gate.leave();
    return Clock::now() - start;
}

// Holds the gate from another thread, as another process would, until letGo(). With `abandon` the
// thread ends without leaving the gate.
class Holder
{
public:
    explicit Holder(const std::filesystem::path& file, bool abandon = false)
        : thread([this, file, abandon] {
              // Outlives an abandoning thread: destroying the gate would open it.
              gate = std::make_unique<WriteGate>(file);
              gate->enter();
              entered.set_value();
              release.get_future().wait_for(std::chrono::seconds(60));
              if (!abandon)
                  gate->leave();
          })
    {
        entered.get_future().wait_for(std::chrono::seconds(60));
    }
    ~Holder() { letGo(); }
    void letGo()
    {
        if (!thread.joinable())
            return;
        release.set_value();
        thread.join();
    }

private:
    std::unique_ptr<WriteGate> gate;
    std::promise<void> entered;
    std::promise<void> release;
    std::thread thread;
};

// Whether the gate is held: another thread, like another process, has to wait.
bool isHeld(const std::filesystem::path& file)
{
    bool waited = false;
    std::thread([&] {
        WriteGate gate(file);
        waited = timeToEnter(gate) >= std::chrono::milliseconds(400);
    }).join();
    return waited;
}

// The best of three measurements: a busy machine may delay a single one.
bool isFree(const std::filesystem::path& file)
{
    return !isHeld(file) || !isHeld(file) || !isHeld(file);
}

decltype(&WaitForSingleObject) systemWait = nullptr;
std::vector<DWORD> waits; // of the watching thread with a limit, in ms
const DWORD watchingThread = GetCurrentThreadId();

DWORD WINAPI recordedWait(HANDLE object, DWORD milliseconds)
{
    if (GetCurrentThreadId() == watchingThread && milliseconds != INFINITE)
        waits.push_back(milliseconds);
    return systemWait(object, milliseconds);
}

class WriteGates : public testing::Test
{
protected:
    const std::filesystem::path file = L"C:\\logs\\" + windows_tests::uniqueName(L"Gate") + L".log";
};

} // namespace

TEST_F(WriteGates, FreeGateIsEnteredAndLeft)
{
    WriteGate gate(file);
    for (int round = 0; round < 2; ++round) {
        gate.enter();
        EXPECT_TRUE(isHeld(file));
        gate.leave();
    }
    EXPECT_TRUE(isFree(file));
}

TEST_F(WriteGates, WaitForAHeldGateIsLimited)
{
    const Holder holder(file);
    WriteGate gate(file);
    const Clock::duration wait = timeToEnter(gate);
    EXPECT_GE(wait, std::chrono::milliseconds(400));
    EXPECT_LT(wait, std::chrono::seconds(20));
}

TEST_F(WriteGates, AfterAFailedWaitTheNextEntersDoNotWait)
{
    Holder holder(file);
    WriteGate gate(file);
    timeToEnter(gate);
    const Clock::time_point start = Clock::now();
    for (int round = 0; round < 100; ++round)
        timeToEnter(gate);
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(30));
    // After a successful enter the next one waits.
    holder.letGo();
    timeToEnter(gate);
    const Holder next(file);
    EXPECT_GE(timeToEnter(gate), std::chrono::milliseconds(400));
}

TEST_F(WriteGates, WaitHalfASecondAtMostAndOnlyWhileTheGateOpens)
{
    Holder holder(file);
    WriteGate gate(file);
    const ReplacedImport watched("WaitForSingleObject", &recordedWait);
    systemWait = watched.original();
    ASSERT_NE(watched.original(), nullptr);
    waits.clear();
    for (int round = 0; round < 3; ++round)
        timeToEnter(gate);
    holder.letGo();
    for (int round = 0; round < 2; ++round)
        timeToEnter(gate);
    EXPECT_EQ(waits, (std::vector<DWORD>{500, 0, 0, 0, 500}));
}

TEST_F(WriteGates, LeavingAGateThatWasNotEnteredHasNoEffect)
{
    const Holder holder(file);
    WriteGate gate(file);
    gate.enter();
    gate.leave();
    EXPECT_TRUE(isHeld(file));
}

TEST_F(WriteGates, GateOfAProcessThatDiedInsideIsEntered)
{
    Holder holder(file, true);
    holder.letGo();
    WriteGate gate(file);
    gate.enter();
    EXPECT_TRUE(isHeld(file));
    gate.leave();
    EXPECT_TRUE(isFree(file));
}

TEST_F(WriteGates, AreDistinguishedByTheFileIgnoringLetterCase)
{
    const Holder holder(file);
    std::wstring upper = file.native();
    CharUpperBuffW(upper.data(), static_cast<DWORD>(upper.size()));
    EXPECT_TRUE(isHeld(upper));

    const std::filesystem::path otherFile = file.native() + L"2";
    WriteGate other(otherFile);
    other.enter();
    EXPECT_TRUE(isHeld(otherFile));
    other.leave();
}
