#include "ui/common/sys/interprocess_communication_win.h"

#include "ui/common/sys/pipe_frame.h"
#include "ui/common/sys/win32_error.h"

#include <cctype>
#include <mutex>

namespace {

// The program's role in the suite; copies of one role meet under it.
constexpr const char* roleName = "Uninstall";

constexpr Keelbase::LogSource logSource{"IPC", "ui/common/sys/interprocess_communication_win"};

// All names here are ASCII.
std::wstring widen(const std::string& text)
{
    return {text.begin(), text.end()};
}

} // namespace

CInterprocessCommunicationWin::CInterprocessCommunicationWin()
    : stopEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      ioEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{}

CInterprocessCommunicationWin::~CInterprocessCommunicationWin()
{
    close();
    if (mutex) {
        ReleaseMutex(mutex.get());
        mutex.reset();
    }
}

void CInterprocessCommunicationWin::claimMutex()
{
    const std::wstring name = getMutexName();
    mutex.reset(CreateMutexW(nullptr, FALSE, name.c_str()));
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED) {
        // The first handle is deliberately left open until this process ends: the name stays taken
        // even if the first copy ends while this one hands over or is about to take its place.
        static_cast<void>(mutex.release());
        mutex.reset(OpenMutexW(MUTEX_ALL_ACCESS, TRUE, name.c_str()));
        if (!mutex)
            win32::logFailure(logSource, __LINE__, "OpenMutexW", GetLastError());
        firstInstance = false;
    } else if (!mutex) {
        win32::logFailure(logSource, __LINE__, "CreateMutexW", error);
    }
    setStop(false);
    ResetEvent(stopEvent.get());
    ResetEvent(ioEvent.get());
    serverThread.setFunction(this);
    overlapped = {};
    overlapped.hEvent = ioEvent.get();
}

std::wstring CInterprocessCommunicationWin::getMutexName()
{
    if (mutexName.empty()) {
        std::string name = std::string("Lumacraft_") + roleName;
        for (char& letter : name)
            letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        mutexName = widen("Global\\" + name);
    }
    return mutexName;
}

std::wstring CInterprocessCommunicationWin::getPipeName()
{
    if (pipeName.empty())
        pipeName = L"DF467A07-9FF8-46A9-B701-2D3ADDD9BE3B_" + widen(roleName);
    return pipeName;
}

void CInterprocessCommunicationWin::close()
{
    requestStop();
    ResetEvent(ioEvent.get());
    serverThread.waitUntilFinished();
    pipe.reset();
    sendBuffer.reset();
    receiveBuffer.reset();
}

void CInterprocessCommunicationWin::requestStop()
{
    setStop(true);
    SetEvent(stopEvent.get());
}

// Common to serving and connecting.
void CInterprocessCommunicationWin::prepare()
{
    ResetEvent(stopEvent.get());
    ResetEvent(ioEvent.get());
    setStop(false);
    getPipeName();
    if (!sendBuffer)
        sendBuffer = std::make_unique<std::uint8_t[]>(sys::largestFrame);
    if (!receiveBuffer)
        receiveBuffer = std::make_unique<std::uint8_t[]>(sys::largestFrame);
}

void CInterprocessCommunicationWin::setStop(bool value)
{
    const std::lock_guard<win32::CriticalSection> lock(stopLock);
    stop = value;
}

bool CInterprocessCommunicationWin::stopRequested()
{
    const std::lock_guard<win32::CriticalSection> lock(stopLock);
    return stop;
}
