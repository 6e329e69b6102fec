#pragma once

#include <cstring>
#include <type_traits>

#include <windows.h>

// Redirects the running program's calls of one system function to `replacement`. Only the main
// module's import is replaced; libraries, and addresses from GetProcAddress, are not affected.
// Returns the replaced function, null when the program does not import it.
template <typename Function>
Function replaceImport(const char* name, Function replacement)
{
    static_assert(std::is_pointer_v<Function>);
    Function original = nullptr;
    auto* const base = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports =
        nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (imports.VirtualAddress == 0)
        return nullptr;
    const auto* library =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
    for (; library->Name != 0; ++library) {
        if (library->OriginalFirstThunk == 0)
            continue; // without the names there is nothing to compare with
        const auto* thunk =
            reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
        for (; thunk->u1.AddressOfData != 0; ++thunk, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(thunk->u1.Ordinal))
                continue;
            const auto* const import =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + thunk->u1.AddressOfData);
            DWORD protection = 0;
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) != 0 ||
                !VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection))
                continue;
            original = reinterpret_cast<Function>(slot->u1.Function);
            slot->u1.Function = reinterpret_cast<ULONGLONG>(replacement);
            VirtualProtect(slot, sizeof *slot, protection, &protection);
        }
    }
    return original;
}

// The same, while it exists.
template <typename Function>
class ReplacedImport
{
public:
    ReplacedImport(const char* importName, Function replacement)
        : name(importName), replaced(replaceImport(importName, replacement))
    {}
    ~ReplacedImport() { replaceImport(name, replaced); }
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

    // Null when the program does not import the function.
    Function original() const { return replaced; }

private:
    const char* const name;
    const Function replaced;
};
