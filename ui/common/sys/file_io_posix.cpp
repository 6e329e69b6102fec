#include "ui/common/sys/replaceable.h"
#include "ui/common/sys/result_codes.h"
#include "ui/common/sys/text_convert.h"

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

FileHandle openFile(const std::wstring& path, const char* mode)
{
    return FileHandle(std::fopen(toNarrow(path).c_str(), mode));
}

int readFile(const std::wstring& path, std::string& content)
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

int writeFile(const std::wstring& path, const std::string& text)
{
    const FileHandle file = openFile(path, "wb");
    if (!file || std::fputs(text.c_str(), file.get()) < 0 || std::fflush(file.get()) != 0)
        return readOrWriteFailed;
    return success;
}

bool exists(const std::wstring& path)
{
    struct stat status = {};
    return stat(toNarrow(path).c_str(), &status) == 0;
}

} // namespace

FileFunctions systemFiles()
{
    return {&readFile, &writeFile, &exists};
}

} // namespace sys
