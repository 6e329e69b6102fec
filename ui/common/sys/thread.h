#pragma once

// Threads and locks on the Win32 primitives.

#include "support/win32/unique_handle.h"

#include <windows.h>

namespace win32 {

// The body of a thread. The object must outlive the thread that runs it.
class CThreadFunction
{
public:
    virtual ~CThreadFunction() = default;

    // Runs on the new thread and must not throw; `argument` is that of its CBaseThread.
    virtual void run(int argument) = 0;
};

// Owns one thread and the two events that report its state. All operations belong to the thread
// that created the object.
//
// Nothing here ends the thread: before destruction the owner makes its body return and calls
// waitUntilFinished(). A thread may be started again once it has ended.
template <int argument>
class CBaseThread
{
public:
    CBaseThread();
    virtual ~CBaseThread();
    CBaseThread(const CBaseThread&) = delete;
    CBaseThread& operator=(const CBaseThread&) = delete;

    // Not owned; null is allowed and makes start() fail.
    void setFunction(CThreadFunction* body) { function = body; }

    // True from start() to the end of the thread.
    bool isRunning() const;

    // Starts the thread and waits, without limit, until it runs. Returns 0,
    // ERROR_INVALID_PARAMETER (87) without a function object, ERROR_BUSY (170) while the previous
    // thread still runs, or ERROR_BAD_ENVIRONMENT (10) when no thread could be made.
    int start();

    // Waits, without limit, for the end of the thread's body and then of the thread; returns at
    // once when no thread was ever started. Afterwards start() is possible again, and the system
    // no longer writes results of the thread's operations into memory.
    void waitUntilFinished() const;

private:
    static unsigned __stdcall entry(void* owner);

    CThreadFunction* function = nullptr;
    KernelHandle thread;
    KernelHandle startedEvent;
    KernelHandle finishedEvent;
};

extern template class CBaseThread<100>;

// A critical section for std::lock_guard.
class CriticalSection
{
public:
    CriticalSection() { InitializeCriticalSection(&section); }
    ~CriticalSection() { DeleteCriticalSection(&section); }
    CriticalSection(const CriticalSection&) = delete;
    CriticalSection& operator=(const CriticalSection&) = delete;

    void lock() { EnterCriticalSection(&section); }
    void unlock() { LeaveCriticalSection(&section); }

private:
    CRITICAL_SECTION section;
};

} // namespace win32
