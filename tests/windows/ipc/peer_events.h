#pragma once

// Named events, by which a test and its child processes synchronise.

#include "support/win32/unique_handle.h"

#include <string>

#include <windows.h>

namespace ipctest {

// A manual-reset event, created by the first process that names it.
class NamedEvent
{
public:
    explicit NamedEvent(const std::wstring& name)
        : event(CreateEventW(nullptr, TRUE, FALSE, name.c_str()))
    {}

    void set() const { SetEvent(event.get()); }
    // False when it is not signalled within `deadline` ms.
    bool wait(DWORD deadline = 60000) const
    {
        return WaitForSingleObject(event.get(), deadline) == WAIT_OBJECT_0;
    }
    bool isSet() const { return WaitForSingleObject(event.get(), 0) == WAIT_OBJECT_0; }
    HANDLE handle() const { return event.get(); }

private:
    win32::KernelHandle event;
};

} // namespace ipctest
