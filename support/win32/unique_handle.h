#pragma once

// Owners of Win32 handles: one type for each kind, each with its own invalid value, so that a
// file's INVALID_HANDLE_VALUE is never taken for an event, nor a null event for a file.
//
// An owner closes its handle on destruction; it can be moved, not copied. One thread at a time may
// use an owner.

#include <utility>

#include <windows.h>

namespace win32 {

template <typename Kind>
class UniqueHandle
{
public:
    using Value = typename Kind::Value;

    UniqueHandle() noexcept = default;
    // Takes ownership. An invalid value makes an empty owner.
    explicit UniqueHandle(Value owned) noexcept : value(owned) {}
    UniqueHandle(UniqueHandle&& other) noexcept : value(other.release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept
    {
        reset(other.release());
        return *this;
    }
    ~UniqueHandle() { reset(); }

    // This object keeps ownership.
    Value get() const noexcept { return value; }
    explicit operator bool() const noexcept { return value != Kind::invalid(); }

    // Closes what is owned and takes over `next`.
    void reset(Value next = Kind::invalid()) noexcept
    {
        const Value previous = std::exchange(value, next);
        if (previous != Kind::invalid())
            Kind::close(previous);
    }
    // Gives the handle up without closing it; the caller owns it.
    [[nodiscard]] Value release() noexcept { return std::exchange(value, Kind::invalid()); }

private:
    Value value = Kind::invalid();
};

struct KernelObjectKind
{
    using Value = HANDLE;
    static Value invalid() noexcept { return nullptr; }
    static void close(Value value) noexcept { CloseHandle(value); }
};

struct FileKind
{
    using Value = HANDLE;
    static Value invalid() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(Value value) noexcept { CloseHandle(value); }
};

struct LibraryKind
{
    using Value = HMODULE;
    static Value invalid() noexcept { return nullptr; }
    static void close(Value value) noexcept { FreeLibrary(value); }
};

// Events, mutexes, threads, processes.
using KernelHandle = UniqueHandle<KernelObjectKind>;
// Files and both ends of pipes: what CreateFileW and CreateNamedPipeW return.
using FileHandle = UniqueHandle<FileKind>;
// Libraries from LoadLibraryW.
using LibraryHandle = UniqueHandle<LibraryKind>;

} // namespace win32
