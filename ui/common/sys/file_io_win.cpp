#include "ui/common/sys/replaceable.h"
#include "ui/common/sys/result_codes.h"
#include "ui/common/sys/win32_error.h"

#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>

#include <windows.h>

namespace sys {

namespace {

constexpr Keelbase::LogSource logSource{"System", "ui/common/sys/file_io"};

struct StreamCloser
{
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, StreamCloser>;

// _wfopen_s refuses a file that is open for writing, as it briefly may be in another application of
// the suite, a virus scanner or a backup.
constexpr ULONGLONG patienceMs = 500;
constexpr DWORD pauseMs = 10;

int openStream(std::FILE** stream, const wchar_t* path, const wchar_t* mode)
{
    return _wfopen_s(stream, path, mode);
}

// Opens for reading, and retries while the file is open elsewhere. `systemError` receives the
// system's error number, 0 on success.
int openPatiently(OpenFile open, std::FILE** stream, const wchar_t* path, DWORD& systemError)
{
    const ULONGLONG begun = GetTickCount64();
    for (;;) {
        const int error = open(stream, path, L"rb");
        systemError = error != 0 ? _doserrno : ERROR_SUCCESS;
        if (systemError != ERROR_SHARING_VIOLATION || GetTickCount64() - begun >= patienceMs)
            return error;
        Sleep(pauseMs);
    }
}

// The stream's size in bytes; the stream stands at its start again.
std::optional<std::size_t> sizeOf(std::FILE* stream)
{
    if (_fseeki64(stream, 0, SEEK_END) != 0)
        return std::nullopt;
    const __int64 size = _ftelli64(stream);
    if (size < 0 || _fseeki64(stream, 0, SEEK_SET) != 0)
        return std::nullopt;
    return static_cast<std::size_t>(size);
}

} // namespace

int readWholeFile(const std::wstring& path, std::string& content, OpenFile open)
{
    try {
        std::FILE* opened = nullptr;
        DWORD systemError = ERROR_SUCCESS;
        if (const int error = openPatiently(open, &opened, path.c_str(), systemError); error != 0) {
            win32::logFailure(logSource, __LINE__, "CreateFileW", systemError);
            return error;
        }
        const Stream stream(opened);
        if (!stream)
            return openedWithoutStream;
        const std::optional<std::size_t> size = sizeOf(stream.get());
        if (!size)
            return readOrWriteFailed;
        std::string bytes(*size, '\0');
        const std::size_t read = std::fread(bytes.data(), 1, bytes.size(), stream.get());
        if (std::ferror(stream.get()) != 0 || (read == 0 && *size != 0)) {
            win32::logFailure(logSource, __LINE__, "ReadFile", GetLastError());
            return readOrWriteFailed;
        }
        bytes.resize(read); // another process may have truncated the file since
        content.swap(bytes);
        return success;
    } catch (const std::exception&) {
        return readOrWriteFailed; // the file does not fit into memory
    }
}

namespace {

int readFile(const std::wstring& path, std::string& content)
{
    return readWholeFile(path, content, &openStream);
}

int writeFile(const std::wstring& path, const std::string& text)
{
    try {
        std::ofstream stream(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
        if (!stream.is_open()) {
            win32::logFailure(logSource, __LINE__, "CreateFileW", GetLastError());
            return readOrWriteFailed;
        }
        stream.write(text.data(), static_cast<std::streamsize>(std::strlen(text.c_str())));
        stream.close();
        if (stream)
            return success;
        win32::logFailure(logSource, __LINE__, "WriteFile", GetLastError());
    } catch (const std::exception&) {
        // No memory for the path or the buffer.
    }
    return readOrWriteFailed;
}

bool exists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

} // namespace

FileFunctions systemFiles()
{
    return {&readFile, &writeFile, &exists};
}

} // namespace sys
