#include "tools/windows_kit/runner/test_run.h"

#include "support/win32/unique_handle.h"
#include "tests/windows/support/ending_job.h"

namespace kit {

namespace {

using win32::FileHandle;
using win32::KernelHandle;

// A file and not a pipe: a process that stays behind cannot keep its reader waiting.
FileHandle outputFile()
{
    wchar_t folder[MAX_PATH + 1] = {};
    wchar_t name[MAX_PATH + 1] = {};
    if (GetTempPathW(MAX_PATH + 1, folder) == 0 || GetTempFileNameW(folder, L"tst", 0, name) == 0)
        return FileHandle();
    SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
    return FileHandle(CreateFileW(name, GENERIC_READ | GENERIC_WRITE | DELETE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  &inherited, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
}

std::string contents(const FileHandle& file)
{
    std::string text;
    char buffer[4096];
    DWORD read = 0;
    SetFilePointer(file.get(), 0, nullptr, FILE_BEGIN);
    while (ReadFile(file.get(), buffer, sizeof(buffer), &read, nullptr) && read > 0)
        text.append(buffer, read);
    return text;
}

std::wstring wide(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

} // namespace

TestResult runTest(const std::filesystem::path& folder, const TestEntry& entry, HANDLE stop)
{
    TestResult result;
    const FileHandle output = outputFile();
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.get();
    startup.hStdError = output.get();

    const std::filesystem::path program = folder / entry.program;
    std::wstring line = L'"' + program.wstring() + L"\" " + wide(entry.arguments);
    PROCESS_INFORMATION started = {};
    // In a group of its own the test does not get Ctrl+C, which is for this program.
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE,
                        CREATE_SUSPENDED | CREATE_NEW_PROCESS_GROUP, nullptr, folder.c_str(),
                        &startup, &started)) {
        result.code = GetLastError();
        return result;
    }
    const KernelHandle process(started.hProcess);
    const KernelHandle thread(started.hThread);
    const ULONGLONG begun = GetTickCount64();
    DWORD ended = WAIT_FAILED;
    {
        const KernelHandle job = windows_tests::endingJob();
        if (!AssignProcessToJobObject(job.get(), process.get())) {
            result.code = GetLastError();
            TerminateProcess(process.get(), 1);
            return result;
        }
        ResumeThread(thread.get());
        const HANDLE awaited[] = {process.get(), stop};
        ended = WaitForMultipleObjects(2, awaited, FALSE, entry.seconds * 1000);
        if (ended == WAIT_OBJECT_0)
            GetExitCodeProcess(process.get(), &result.code);
    }
    result.seconds = static_cast<double>(GetTickCount64() - begun) / 1000;
    result.output = contents(output);
    if (ended == WAIT_TIMEOUT)
        result.outcome = Outcome::overTime;
    else if (ended != WAIT_OBJECT_0)
        result.outcome = Outcome::stopped;
    else
        result.outcome = result.code == 0 ? Outcome::passed : Outcome::failed;
    return result;
}

} // namespace kit
