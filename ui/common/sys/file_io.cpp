#include "ui/common/sys/file_io.h"

#include "ui/common/sys/replaceable.h"

namespace sys {

namespace {

FileFunctions& files()
{
    static FileFunctions functions = systemFiles();
    return functions;
}

} // namespace

int readWholeFile(const std::wstring& path, std::string& content)
{
    return files().read(path, content);
}

int writeWholeFile(const std::wstring& path, const std::string& text)
{
    return files().write(path, text);
}

bool fileExists(const std::wstring& path)
{
    return files().exists(path);
}

void setFileFunctions(const FileFunctions& replacement)
{
    files() = replacement;
}

} // namespace sys
