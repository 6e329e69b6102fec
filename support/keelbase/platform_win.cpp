#include "support/keelbase/platform.h"
#include "support/win32/unique_handle.h"

#include <functional>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

namespace Keelbase {

namespace {

// Far longer than one write takes, and short enough for a window not to seem frozen.
constexpr DWORD patienceMs = 500;

// A hash, since a mutex name cannot hold backslashes, of the folded path, since paths are not
// case-sensitive.
std::wstring gateName(const std::filesystem::path& logFile)
{
    std::wstring folded = logFile.native();
    CharLowerBuffW(folded.data(), static_cast<DWORD>(folded.size()));
    return L"Local\\Keelbase_log_" + std::to_wstring(std::hash<std::wstring>{}(folded));
}

// The user's folder for roaming application data; empty when the system has none.
std::wstring roamingFolder()
{
    // FOLDERID_RoamingAppData, which shlobj.h only declares.
    constexpr GUID roamingAppData = {
        0x3EB685DB, 0x65F9, 0x4CF6, {0xA0, 0x3A, 0xE3, 0xEF, 0x65, 0x72, 0x9F, 0x3D}};
    wchar_t* found = nullptr;
    const bool known = SUCCEEDED(SHGetKnownFolderPath(roamingAppData, 0, nullptr, &found));
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(found, &CoTaskMemFree);
    return known && found != nullptr ? found : std::wstring();
}

// No Windows path is longer than the buffer here.
std::wstring programPath()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

} // namespace

std::filesystem::path logFilePath(const std::string& settingsName)
{
    return logFileBelow(roamingFolder(), settingsName, programPath());
}

// From the end: the first parts of a network path can be neither seen nor made.
void makeFolders(const std::filesystem::path& folder)
{
    if (CreateDirectoryW(folder.c_str(), nullptr) || GetLastError() != ERROR_PATH_NOT_FOUND ||
        !folder.has_relative_path())
        return;
    makeFolders(folder.parent_path());
    CreateDirectoryW(folder.c_str(), nullptr);
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
    // After a wait that timed out the gate is only tried, until it is free again.
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
