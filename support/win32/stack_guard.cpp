// The symbols that -fstack-protector code refers to. GCC's own library takes the guard value from
// the system's cryptography, which loads two libraries at every start. Here it is mixed, as by
// Microsoft's compiler, from what differs between starts.
#include <cstdint>

#include <windows.h>

extern "C" {

// Read by the compiler's code at the beginning and end of functions with arrays. Until
// chooseGuard() runs it has the start value that Microsoft's compiler uses.
std::uintptr_t __stack_chk_guard = 0x00002B992DDFA232;

// Called by that code when the copy on the stack has changed.
[[noreturn]] void __stack_chk_fail()
{
    // No unwinding and no handlers: the stack cannot be trusted.
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_STACK_BUFFER_OVERRUN));
    __builtin_trap();
}
}

namespace {

// Runs first: a function that is active while the value changes would fail its check.
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
    // The system chooses the addresses of stack and program anew.
    value ^= reinterpret_cast<std::uintptr_t>(&time) << 8;
    value ^= reinterpret_cast<std::uintptr_t>(&chooseGuard);
    // The lowest byte in memory is zero: it stops overruns by functions that copy text.
    __stack_chk_guard = value & ~std::uintptr_t{0xFF};
}

} // namespace
