#pragma once

// Lets two processes take turns, by two named events.

#include "support/win32/unique_handle.h"

#include <string>

namespace windows_tests {

class Turns
{
public:
    // Exactly one of the two processes is the first, which has the first turn.
    Turns(const std::wstring& name, bool isFirst)
        : own(CreateEventW(nullptr, FALSE, isFirst, (name + (isFirst ? L"_1" : L"_2")).c_str())),
          others(CreateEventW(nullptr, FALSE, !isFirst, (name + (isFirst ? L"_2" : L"_1")).c_str()))
    {}

    // False when the other process does not end its turn in time.
    bool wait() const { return WaitForSingleObject(own.get(), 60000) == WAIT_OBJECT_0; }
    void endTurn() const { SetEvent(others.get()); }

private:
    win32::KernelHandle own;
    win32::KernelHandle others;
};

} // namespace windows_tests
