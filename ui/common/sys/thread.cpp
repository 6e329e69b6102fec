#include "ui/common/sys/thread.h"

#include "ui/common/sys/thread_start.h"
#include "ui/common/sys/win32_error.h"

#include <cstdint>

namespace win32 {

namespace {

constexpr Keelbase::LogSource logSource{"IPC", "ui/common/sys/thread"};

BeginThread beginThread = &_beginthreadex;

} // namespace

void setBeginThread(BeginThread begin)
{
    beginThread = begin ? begin : &_beginthreadex;
}

template <int argument>
CBaseThread<argument>::CBaseThread()
    : startedEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      finishedEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    ResetEvent(startedEvent.get());
    ResetEvent(finishedEvent.get());
}

template <int argument>
CBaseThread<argument>::~CBaseThread()
{
    thread.reset();
    finishedEvent.reset();
    startedEvent.reset();
}

template <int argument>
bool CBaseThread<argument>::isRunning() const
{
    DWORD exitCode = 0;
    return thread && GetExitCodeThread(thread.get(), &exitCode) && exitCode == STILL_ACTIVE;
}

template <int argument>
int CBaseThread<argument>::start()
{
    if (!function)
        return ERROR_INVALID_PARAMETER;
    if (isRunning())
        return ERROR_BUSY;
    thread.reset();
    ResetEvent(startedEvent.get());
    ResetEvent(finishedEvent.get());
    const std::uintptr_t started = beginThread(nullptr, 0, &CBaseThread::entry, this, 0, nullptr);
    if (started == 0) {
        win32::logFailure(logSource, __LINE__, "_beginthreadex", GetLastError());
        return ERROR_BAD_ENVIRONMENT;
    }
    thread.reset(reinterpret_cast<HANDLE>(started));
    WaitForSingleObject(startedEvent.get(), INFINITE);
    return 0;
}

template <int argument>
void CBaseThread<argument>::waitUntilFinished() const
{
    if (!thread)
        return;
    const HANDLE ends[] = {finishedEvent.get(), thread.get()};
    WaitForMultipleObjects(2, ends, FALSE, INFINITE);
    // The body has returned, and the thread is about to end. Until then the system may still write
    // results of the thread's pending operations into its owner's memory.
    WaitForSingleObject(thread.get(), INFINITE);
}

template <int argument>
unsigned __stdcall CBaseThread<argument>::entry(void* owner)
{
    auto* self = static_cast<CBaseThread*>(owner);
    SetEvent(self->startedEvent.get());
    if (self->function)
        self->function->run(argument);
    SetEvent(self->finishedEvent.get());
    return 0;
}

template class CBaseThread<100>;

} // namespace win32
