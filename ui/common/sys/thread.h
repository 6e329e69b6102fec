#pragma once

// Threads and locks on the Win32 primitives, without C++ exceptions crossing a thread's start.

#include "support/win32/unique_handle.h"

#include <windows.h>

namespace win32 {

// The body of a thread. The object must outlive the thread that runs it.
class CThreadFunction
{
public:
    virtual ~CThreadFunction() = default;

    // Runs on the new thread; `argument` is the number of its owner's type.
    virtual void run(int argument) = 0;
};

// Owns one thread and the two events that tell its state. Not copyable. All members belong to the
// thread that created the object, except what the started thread itself signals.
//
// Nothing here ends the thread: the object that owns this one asks its body to return and calls
// waitUntilFinished() before destruction. A thread may be started again once it has ended.
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
    // once when no thread was ever started. Afterwards start() is not busy any more, and nothing
    // that the thread had asked of the system writes into memory.
    void waitUntilFinished() const;

private:
    static unsigned __stdcall entry(void* owner);

    CThreadFunction* function = nullptr;
    KernelHandle thread;
    KernelHandle startedEvent;
    KernelHandle finishedEvent;
};

extern template class CBaseThread<100>;

// A critical section that lives as long as the object. Usable with std::lock_guard.
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
