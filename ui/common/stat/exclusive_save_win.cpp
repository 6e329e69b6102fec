#include "ui/common/stat/exclusive_save.h"

#include "support/win32/unique_handle.h"
#include "ui/common/sys/win32_error.h"

#include <windows.h>

namespace stats {
namespace {

constexpr const char* logCategory = "AppEventStat";
constexpr const char* logSource = "ui/common/stat/exclusive_save_win";

// One for each session; the sessions of one user share the file, but hardly a moment.
constexpr const wchar_t* mutexName = L"Local\\Lumacraft_common.cfg";
constexpr DWORD longestWaitMs = 2000;

// Holds the mutex, or nothing when it cannot be had in time.
class SaveLock
{
public:
    SaveLock() : mutex(CreateMutexW(nullptr, FALSE, mutexName))
    {
        if (!mutex) {
            win32::logFailure(logCategory, logSource, __LINE__, "CreateMutexW", GetLastError());
            return;
        }
        const DWORD outcome = WaitForSingleObject(mutex.get(), longestWaitMs);
        // Abandoned: its owner was ended while saving. The lock is ours like any other.
        isHeld = outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED;
        if (outcome == WAIT_FAILED)
            win32::logFailure(logCategory, logSource, __LINE__, "WaitForSingleObject",
                              GetLastError());
    }
    ~SaveLock()
    {
        if (isHeld)
            ReleaseMutex(mutex.get());
    }
    SaveLock(const SaveLock&) = delete;
    SaveLock& operator=(const SaveLock&) = delete;

private:
    win32::KernelHandle mutex;
    bool isHeld = false;
};

} // namespace

int saveExclusively(fs::CConfig& common)
{
    const SaveLock lock;
    return common.save();
}

} // namespace stats
