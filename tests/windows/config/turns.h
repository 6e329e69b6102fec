#pragma once

// Two processes taking turns, by two named events with the same start of their names.

#include "support/win32/unique_handle.h"

#include <string>

namespace windows_tests {

class Turns
{
public:
    // One process is the first, which has the first turn; the other is not.
    Turns(const std::wstring& name, bool isFirst)
        : own(CreateEventW(nullptr, FALSE, isFirst, (name + (isFirst ? L"_1" : L"_2")).c_str())),
          others(CreateEventW(nullptr, FALSE, !isFirst, (name + (isFirst ? L"_2" : L"_1")).c_str()))
    {}

    // False when the other process does not hand over in time.
    bool wait() const { return WaitForSingleObject(own.get(), 60000) == WAIT_OBJECT_0; }
    void handOver() const { SetEvent(others.get()); }

private:
    win32::KernelHandle own;
    win32::KernelHandle others;
};

} // namespace windows_tests
