#pragma once

// The records of the sample programs, in the form that records.nsh describes.

#include <cstdio>
#include <memory>
#include <string>

#include <windows.h>

namespace sample_suite {

constexpr const wchar_t* recordsFolder = L"C:\\records";

struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

inline std::wstring ownPath()
{
    std::wstring path(32'768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

// The program's file name without folder and extension: the name that it records under.
inline std::wstring ownName()
{
    const std::wstring path = ownPath();
    const std::wstring name = path.substr(path.find_last_of(L'\\') + 1);
    return name.substr(0, name.find_last_of(L'.'));
}

// Appends whole lines, each with its line end. Prints an error and returns false when that fails.
inline bool appendToRecord(const std::wstring& lines)
{
    CreateDirectoryW(recordsFolder, nullptr);
    const std::wstring path = std::wstring(recordsFolder) + L'\\' + ownName() + L".txt";
    const std::unique_ptr<std::FILE, FileCloser> record(_wfopen(path.c_str(), L"ab"));
    if (record &&
        std::fwrite(lines.data(), sizeof(wchar_t), lines.size(), record.get()) == lines.size() &&
        std::fflush(record.get()) == 0)
        return true;
    std::fprintf(stderr, "%ls: the record cannot be written\n", ownName().c_str());
    return false;
}

// To be called at the program's start.
inline bool recordCommandLine()
{
    return appendToRecord(std::wstring(L"line\t") + GetCommandLineW() + L"\r\n");
}

// To be called at the program's end.
inline bool recordEnd()
{
    return appendToRecord(L"end\t0\r\n");
}

} // namespace sample_suite
