// What -fstack-protector refers to. GCC's own library for it asks the system's cryptography for the
// value, which at every start loads two libraries; the value below is made as Microsoft's compiler
// makes its own, from what differs between starts.
#include <cstdint>

#include <windows.h>

extern "C" {

// Read by the compiler's code at the begin and the end of functions with arrays.
std::uintptr_t __stack_chk_guard = 0x00002B992DDFA232;

// Called by that code when the value on the stack is another one at the end.
[[noreturn]] void __stack_chk_fail()
{
    // Without unwinding or handlers: the stack is not to be trusted.
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_STACK_BUFFER_OVERRUN));
    __builtin_trap();
}
}

namespace {

// First of all: functions that are running while the value changes would fail.
[[gnu::constructor(101), gnu::no_stack_protector]] void chooseGuard()
{
    FILETIME time = {};
    LARGE_INTEGER ticks = {};
    GetSystemTimeAsFileTime(&time);
    QueryPerformanceCounter(&ticks);
    std::uintptr_t value = (std::uintptr_t{time.dwHighDateTime} << 32) ^ time.dwLowDateTime;
    value ^= static_cast<std::uintptr_t>(ticks.QuadPart) << 16;
    value ^= std::uintptr_t{GetCurrentProcessId()} << 24;
    value ^= GetCurrentThreadId();
    // Where the stack and the program lie is chosen anew by the system.
    value ^= reinterpret_cast<std::uintptr_t>(&time) << 8;
    value ^= reinterpret_cast<std::uintptr_t>(&chooseGuard);
    // No copy of text goes past a zero, which lies lowest in memory.
    __stack_chk_guard = value & ~std::uintptr_t{0xFF};
}

} // namespace
