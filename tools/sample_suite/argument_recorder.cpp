// Stands in for any program that a registered uninstall command may name: it records the command
// line that it received, in the form that records.nsh describes, under its own file name, and ends.
// Unlike an NSIS program it takes command lines of any length.
#include <windows.h>

#include <cstdio>
#include <memory>
#include <string>

namespace {

struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::wstring ownName()
{
    std::wstring path(32'768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    path.erase(0, path.find_last_of(L'\\') + 1);
    return path.substr(0, path.find_last_of(L'.'));
}

} // namespace

int main()
{
    const std::wstring text = std::wstring(L"line\t") + GetCommandLineW() + L"\r\nend\t0\r\n";
    CreateDirectoryW(L"C:\\records", nullptr);
    const std::wstring path = L"C:\\records\\" + ownName() + L".txt";
    const std::unique_ptr<std::FILE, FileCloser> record(_wfopen(path.c_str(), L"ab"));
    if (!record ||
        std::fwrite(text.data(), sizeof(wchar_t), text.size(), record.get()) != text.size()) {
        std::fprintf(stderr, "argument_recorder: the record cannot be written\n");
        return 1;
    }
    return 0;
}
