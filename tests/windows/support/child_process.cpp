#include "tests/windows/support/child_process.h"

#include "ui/common/sys/module_path.h"

#include <stdexcept>

namespace windows_tests {

ChildProcess::ChildProcess(const std::filesystem::path& program,
                           const std::vector<std::wstring>& arguments)
{
    std::wstring commandLine = L"\"" + program.native() + L"\"";
    for (const std::wstring& argument : arguments)
        commandLine += L" \"" + argument + L"\"";
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION started = {};
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &start, &started))
        throw std::runtime_error("cannot start " + program.u8string() + ": error " +
                                 std::to_string(GetLastError()));
    process.reset(started.hProcess);
    processId = started.dwProcessId;
    const win32::KernelHandle thread(started.hThread);
}

ChildProcess::~ChildProcess()
{
    TerminateProcess(process.get(), 255); // does nothing when it has ended
    WaitForSingleObject(process.get(), patienceMs);
}

std::optional<DWORD> ChildProcess::waitForEnd(DWORD timeoutMs) const
{
    DWORD code = 0;
    if (WaitForSingleObject(process.get(), timeoutMs) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process.get(), &code))
        return std::nullopt;
    return code;
}

std::filesystem::path helperProgram(const std::wstring& name)
{
    return std::filesystem::path(sys::moduleFolder()) / (name + L".exe");
}

ScopedVariable::ScopedVariable(const wchar_t* name, const wchar_t* value) : variable(name)
{
    SetEnvironmentVariableW(name, value);
}

ScopedVariable::~ScopedVariable()
{
    SetEnvironmentVariableW(variable, nullptr);
}

} // namespace windows_tests
