#include "tests/windows/support/child_process.h"

#include "tests/windows/support/ending_job.h"
#include "ui/common/sys/module_path.h"

#include <cstdio>

namespace windows_tests {

namespace {

std::wstring quoted(const std::wstring& argument)
{
    if (!argument.empty() && argument.find_first_of(L" \t\"") == std::wstring::npos)
        return argument;
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t letter : argument) {
        if (letter == L'"')
            text.append(backslashes + 1, L'\\');
        backslashes = letter == L'\\' ? backslashes + 1 : 0;
        text += letter;
    }
    text.append(backslashes, L'\\');
    return text + L'"';
}

// NSIS finds a switch only if nothing but its value is in quotes.
std::wstring quotedArgument(const std::wstring& argument)
{
    const std::size_t end = argument.find_first_of(L"= \t\"");
    if (end == std::wstring::npos || argument[end] != L'=')
        return quoted(argument);
    return argument.substr(0, end + 1) + quoted(argument.substr(end + 1));
}

} // namespace

DWORD waitTime(milliseconds time)
{
    return static_cast<DWORD>(time.count());
}

ChildProcess::ChildProcess(const std::wstring& program, const std::vector<std::wstring>& arguments,
                           const ChildOptions& options)
    : job(endingJob())
{
    std::wstring line;
    const std::wstring launcher = nearestAbove(L"tools\\launcher.exe");
    if (options.withEnvironment && !launcher.empty())
        line = quoted(launcher) + L' ';
    line += quoted(program);
    for (const std::wstring& argument : arguments)
        line += L' ' + quotedArgument(argument);

    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    win32::FileHandle childEnd;
    if (options.captureOutput) {
        HANDLE read = nullptr;
        HANDLE write = nullptr;
        CreatePipe(&read, &write, nullptr, 1 << 20);
        outputEnd.reset(read);
        childEnd.reset(write);
        SetHandleInformation(write, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = write;
        startup.hStdError = options.captureErrors ? write : GetStdHandle(STD_ERROR_HANDLE);
    }
    // Uninstall.exe asks for the highest rights: without this an administrator who has not elevated
    // the test could not start it.
    SetEnvironmentVariableW(L"__COMPAT_LAYER", L"RunAsInvoker");
    PROCESS_INFORMATION information = {};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, options.captureOutput,
                        CREATE_SUSPENDED, nullptr,
                        options.folder.empty() ? nullptr : options.folder.c_str(), &startup,
                        &information)) {
        std::fprintf(stderr, "CreateProcessW(%ls): error %lu\n", line.c_str(), GetLastError());
        return;
    }
    process.reset(information.hProcess);
    processId = information.dwProcessId;
    const win32::KernelHandle mainThread(information.hThread);
    if (!AssignProcessToJobObject(job.get(), process.get())) {
        std::fprintf(stderr, "AssignProcessToJobObject: error %lu\n", GetLastError());
        TerminateProcess(process.get(), 1);
        process.reset();
        return;
    }
    ResumeThread(mainThread.get());
}

std::optional<DWORD> ChildProcess::waitForExit(milliseconds deadline) const
{
    DWORD code = 0;
    if (!process || WaitForSingleObject(process.get(), waitTime(deadline)) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process.get(), &code))
        return std::nullopt;
    return code;
}

void ChildProcess::kill()
{
    TerminateJobObject(job.get(), 1);
}

std::string ChildProcess::output()
{
    std::string text;
    char buffer[4096];
    DWORD read = 0;
    while (outputEnd && ReadFile(outputEnd.get(), buffer, sizeof(buffer), &read, nullptr) && read)
        text.append(buffer, read);
    return text;
}

std::wstring siblingProgram(const std::wstring& name)
{
    return sys::moduleFolder() + L'\\' + name + L".exe";
}

std::wstring nearestAbove(const std::wstring& relativePath)
{
    std::wstring folder = sys::moduleFolder();
    for (;;) {
        std::wstring path = folder + L'\\' + relativePath;
        if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES)
            return path;
        const std::size_t end = folder.find_last_of(L'\\');
        if (end == std::wstring::npos)
            return {};
        folder.resize(end);
    }
}

} // namespace windows_tests
