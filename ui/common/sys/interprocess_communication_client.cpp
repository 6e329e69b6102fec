// The client side of CInterprocessCommunicationWin.

#include "ui/common/sys/interprocess_communication_win.h"
#include "ui/common/sys/pipe_frame.h"
#include "ui/common/sys/win32_error.h"

namespace {

constexpr DWORD connectWait = 15000; // ms
constexpr int attempts = 7;
constexpr DWORD pauseBetweenAttempts = 300; // ms

constexpr Keelbase::LogSource logSource{"IPC", "ui/common/sys/interprocess_communication_client"};

} // namespace

int CInterprocessCommunicationWin::connectToServer()
{
    prepare();
    // A deliberate oddity: the bare name is not a pipe's path, so this call fails at once and the
    // open below decides whether there is a server. If the call succeeds, nothing is opened.
    if (WaitNamedPipeW(getPipeName().c_str(), connectWait))
        return static_cast<int>(GetLastError());

    wchar_t computer[16] = {};
    DWORD computerSize = 16;
    if (!GetComputerNameW(computer, &computerSize))
        win32::logFailure(logSource, __LINE__, "GetComputerNameW", GetLastError());
    // By the computer's name the pipe is opened through the system's file sharing, which gives a
    // handle in message-read mode, as TransactNamedPipe requires.
    const std::wstring path = std::wstring(L"\\\\") + computer + L"\\pipe\\" + getPipeName();
    const HANDLE opened =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        win32::logFailure(logSource, __LINE__, "CreateFileW", error);
        return static_cast<int>(error);
    }
    pipe.reset(opened);
    return 0;
}

int CInterprocessCommunicationWin::sendMessage(const std::string& text)
{
    if (firstInstance)
        return 0;
    if (!pipe)
        return ERROR_BAD_ENVIRONMENT;
    lastAnswer.clear();
    const std::size_t size = sys::writeFrame(sendBuffer.get(), GetCurrentProcessId(), text);
    if (size == 0)
        return ERROR_BUFFER_OVERFLOW;

    DWORD error = 0;
    for (int attempt = 1; !stopRequested(); ++attempt) {
        DWORD received = 0;
        if (TransactNamedPipe(pipe.get(), sendBuffer.get(), static_cast<DWORD>(size),
                              receiveBuffer.get(), static_cast<DWORD>(sys::largestFrame), &received,
                              nullptr)) {
            if (const auto answer = sys::readAnswer(receiveBuffer.get(), received))
                lastAnswer.assign(*answer);
            break;
        }
        error = GetLastError();
        win32::logFailure(logSource, __LINE__, "TransactNamedPipe", error);
        if (attempt == attempts ||
            WaitForSingleObject(stopEvent.get(), pauseBetweenAttempts) == WAIT_OBJECT_0)
            break;
    }
    return static_cast<int>(error);
}
