// A library, or a program, planted where Uninstall.exe might find it. When loaded or run it creates
// a file with its own name and ".touched".
#include <iterator>
#include <string>

#include <windows.h>

namespace {

void leaveMark(HMODULE module)
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(module, path, static_cast<DWORD>(std::size(path)));
    const std::wstring mark = std::wstring(path) + L".touched";
    const HANDLE file =
        CreateFileW(mark.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
        leaveMark(module);
    return TRUE;
}

int main()
{
    leaveMark(nullptr);
    return 0;
}
