#include "support/keelbase/platform.h"

#include "ui/common/sys/known_folders.h"
#include "ui/common/sys/module_path.h"
#include "ui/common/sys/unique_handle.h"

#include <functional>

#include <windows.h>

namespace Keelbase {

namespace {

// Many times what one write takes, and short enough to go unnoticed in the window.
constexpr DWORD patienceMs = 500;

// Mutex names cannot hold backslashes, and paths compare without regard to letter case.
std::wstring gateName(const std::filesystem::path& logFile)
{
    std::wstring folded = logFile.native();
    CharLowerBuffW(folded.data(), static_cast<DWORD>(folded.size()));
    return L"Local\\Keelbase_log_" + std::to_wstring(std::hash<std::wstring>{}(folded));
}

} // namespace

std::filesystem::path logFilePath(const std::string& settingsName)
{
    std::wstring roaming;
    sys::knownFolderPath(sys::KnownFolder::roamingAppData, roaming);
    return logFileBelow(roaming, settingsName, sys::modulePath());
}

struct WriteGate::State
{
    win32::KernelHandle mutex;
    bool entered = false;
    bool othersStuck = false;
};

WriteGate::WriteGate(const std::filesystem::path& logFile) : state(std::make_unique<State>())
{
    state->mutex.reset(CreateMutexW(nullptr, FALSE, gateName(logFile).c_str()));
}

WriteGate::~WriteGate() = default;

void WriteGate::enter() noexcept
{
    if (!state->mutex)
        return;
    // After one wait in vain the gate is only tried, until it proves free again.
    const DWORD outcome =
        WaitForSingleObject(state->mutex.get(), state->othersStuck ? 0 : patienceMs);
    state->entered = outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED;
    state->othersStuck = !state->entered;
}

void WriteGate::leave() noexcept
{
    if (state->entered)
        ReleaseMutex(state->mutex.get());
    state->entered = false;
}

} // namespace Keelbase
