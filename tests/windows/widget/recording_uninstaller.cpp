// An uninstaller that removes nothing: each start appends its arguments as one line of UTF-8 to
// "<own path>.args". A copy named "slow.exe" then runs for ten seconds and writes "<own
// path>.done".
#include "tests/sample_suite/record_file.h"

#include <cstdio>
#include <string>

#include <windows.h>

#include <shellapi.h>

namespace {

constexpr DWORD slowMs = 10'000;

std::string utf8(const std::wstring& text)
{
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                        length, nullptr, nullptr);
    return bytes;
}

bool appendLine(const std::wstring& path, const std::string& line)
{
    std::FILE* file = nullptr;
    if (_wfopen_s(&file, path.c_str(), L"ab") != 0)
        return false;
    std::fprintf(file, "%s\n", line.c_str());
    return std::fclose(file) == 0;
}

} // namespace

int main()
{
    int count = 0;
    LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::string line;
    for (int i = 1; i < count; ++i)
        line += (i > 1 ? "|" : "") + utf8(arguments[i]);
    LocalFree(arguments);

    const std::wstring path = sample_suite::ownPath();
    if (!appendLine(path + L".args", line))
        return 1;
    if (sample_suite::ownName() == L"slow") {
        Sleep(slowMs);
        return appendLine(path + L".done", "done") ? 0 : 1;
    }
    return 0;
}
