#include "tests/windows/support/scratch_folder.h"
#include "ui/common/stat/exclusive_save.h"
#include "ui/common/sys/result_codes.h"
#include "support/win32/unique_handle.h"

#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <thread>

#include <windows.h>

using namespace std::chrono_literals;

namespace {

constexpr const wchar_t* mutexName = L"Local\\Lumacraft_common.cfg";

class ExclusiveSave : public testing::Test
{
protected:
    ExclusiveSave()
    {
        config.setFileName((folder / "common.cfg").wstring());
        config.setValue("Key", "value");
    }

    // How long the save took; the file must hold the change afterwards.
    std::chrono::steady_clock::duration save()
    {
        const auto begun = std::chrono::steady_clock::now();
        EXPECT_EQ(stats::saveExclusively(config), sys::success);
        EXPECT_EQ(windows_tests::readBytes(folder / "common.cfg"), "Key=value\n");
        return std::chrono::steady_clock::now() - begun;
    }

    windows_tests::ScratchFolder folder;
    fs::CConfig config;
};

// Another owner of the mutex, for as long as the object lives.
class OtherOwner
{
public:
    OtherOwner() : owner([this] { own(); }) { owned.get_future().wait(); }
    ~OtherOwner()
    {
        released.set_value();
        owner.join();
    }
    OtherOwner(const OtherOwner&) = delete;
    OtherOwner& operator=(const OtherOwner&) = delete;

private:
    void own()
    {
        const win32::KernelHandle mutex(CreateMutexW(nullptr, FALSE, mutexName));
        WaitForSingleObject(mutex.get(), 10'000);
        owned.set_value();
        released.get_future().wait();
        ReleaseMutex(mutex.get());
    }

    std::promise<void> owned;
    std::promise<void> released;
    std::thread owner;
};

} // namespace

TEST_F(ExclusiveSave, DoesNotWaitWhenNobodyElseSaves)
{
    EXPECT_LT(save(), 1500ms);
}

TEST_F(ExclusiveSave, WaitsForAnotherButNotForEver)
{
    const OtherOwner other;
    const auto spent = save();
    EXPECT_GE(spent, 1900ms);
    EXPECT_LT(spent, 10s);
}

TEST_F(ExclusiveSave, GoesOnWhenTheOtherIsDone)
{
    std::future<std::chrono::steady_clock::duration> spent;
    {
        const OtherOwner other;
        spent = std::async(std::launch::async, [this] { return save(); });
    }
    EXPECT_LT(spent.get(), 1900ms);
}

TEST_F(ExclusiveSave, TakesOverFromAnOwnerThatEndedWhileSaving)
{
    const win32::KernelHandle keepsTheMutex(CreateMutexW(nullptr, FALSE, mutexName));
    std::thread([] {
        // The handle stays open, so that the mutex is abandoned rather than destroyed.
        WaitForSingleObject(CreateMutexW(nullptr, FALSE, mutexName), 10'000);
    }).join();
    EXPECT_LT(save(), 1500ms);
}
