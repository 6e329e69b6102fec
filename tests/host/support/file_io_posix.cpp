#include "ui/common/sys/file_io.h"

#include "ui/common/sys/result_codes.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <sys/stat.h>

namespace sys {

namespace {

struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

// Paths are UTF-8 here whatever the locale. A wide character is a whole code point.
std::string utf8(const std::wstring& text)
{
    std::string bytes;
    const auto append = [&bytes](unsigned lead, unsigned point, int continuationBytes) {
        bytes += static_cast<char>(lead | (point >> (6 * continuationBytes)));
        while (continuationBytes-- > 0)
            bytes += static_cast<char>(0x80U | ((point >> (6 * continuationBytes)) & 0x3FU));
    };
    for (const wchar_t character : text) {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse,cert-str34-c): a wide character is no char
        const auto point = static_cast<unsigned>(character);
        if (point < 0x80)
            append(0, point, 0);
        else if (point < 0x800)
            append(0xC0, point, 1);
        else if (point < 0x10000)
            append(0xE0, point, 2);
        else
            append(0xF0, point, 3);
    }
    return bytes;
}

FileHandle openFile(const std::wstring& path, const char* mode)
{
    return FileHandle(std::fopen(utf8(path).c_str(), mode));
}

} // namespace

int readWholeFile(const std::wstring& path, std::string& content)
{
    const FileHandle file = openFile(path, "rb");
    if (!file)
        return errno;
    struct stat status = {};
    if (fstat(fileno(file.get()), &status) != 0)
        return readOrWriteFailed;
    std::string read(static_cast<std::size_t>(status.st_size), '\0');
    if (std::fread(read.data(), 1, read.size(), file.get()) != read.size())
        return readOrWriteFailed;
    content = std::move(read);
    return success;
}

int writeWholeFile(const std::wstring& path, const std::string& text)
{
    const FileHandle file = openFile(path, "wb");
    if (!file || std::fputs(text.c_str(), file.get()) < 0 || std::fflush(file.get()) != 0)
        return readOrWriteFailed;
    return success;
}

bool fileExists(const std::wstring& path)
{
    struct stat status = {};
    return stat(utf8(path).c_str(), &status) == 0;
}

} // namespace sys
