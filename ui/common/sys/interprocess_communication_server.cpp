// The serving side of CInterprocessCommunicationWin.

#include "ui/common/sys/interprocess_communication_win.h"
#include "ui/common/sys/pipe_frame.h"
#include "ui/common/sys/win32_error.h"

#include <exception>

namespace {

constexpr DWORD defaultWait = 15000; // ms, what WaitNamedPipe uses for NMPWAIT_USE_DEFAULT_WAIT

constexpr Keelbase::LogSource logSource{"IPC", "ui/common/sys/interprocess_communication_server"};

void logGivenUp(const char* reason) noexcept
{
    try {
        KEELBASE_LOG(logSource, Keelbase::levelError) << "An exchange was given up: " << reason;
    } catch (...) {
        // No memory for the message.
    }
}

} // namespace

int CInterprocessCommunicationWin::createServer()
{
    // Checked first: the lines below would take the pipe, and a requested stop, from the thread
    // that is serving.
    if (serverThread.isRunning())
        return ERROR_BUSY;
    prepare();
    const int opened = openPipe();
    if (opened != 0)
        return opened;
    const int started = serverThread.start();
    // Clients of a pipe that nobody serves would wait until this process ends.
    if (started != 0)
        pipe.reset();
    return started;
}

int CInterprocessCommunicationWin::openPipe()
{
    // A null access list lets any account open the pipe: an elevated copy and one that is not must
    // reach each other. So a message may cause nothing that its sender could not do itself; see
    // docs/messages.md.
    SECURITY_DESCRIPTOR descriptor = {};
    InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&descriptor, TRUE, nullptr, FALSE);
    SECURITY_ATTRIBUTES attributes = {};
    attributes.nLength = sizeof(attributes);
    attributes.lpSecurityDescriptor = &descriptor;
    attributes.bInheritHandle = FALSE;

    const std::wstring path = L"\\\\.\\pipe\\" + getPipeName();
    const HANDLE created =
        CreateNamedPipeW(path.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED,
                         PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE | PIPE_WAIT,
                         PIPE_UNLIMITED_INSTANCES, static_cast<DWORD>(sys::largestFrame),
                         static_cast<DWORD>(sys::largestFrame), defaultWait, &attributes);
    if (created == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        win32::logFailure(logSource, __LINE__, "CreateNamedPipeW", error);
        return static_cast<int>(error);
    }
    pipe.reset(created);
    return 0;
}

// One client at a time: connect, one request, its answer, disconnect.
void CInterprocessCommunicationWin::run(int)
{
    if (stopRequested())
        return;
    std::string text; // reused for every message
    bool goOn = true;
    do {
        if (!ConnectNamedPipe(pipe.get(), &overlapped)) {
            const DWORD error = GetLastError();
            if (error != ERROR_IO_PENDING) {
                // A deliberate oddity: a client that connected before this call, which is possible
                // only right after the pipe was opened (ERROR_PIPE_CONNECTED), ends serving too.
                // Later copies find the pipe busy and end. That client is disconnected, or it would
                // wait for an answer until this process ends.
                win32::logFailure(logSource, __LINE__, "ConnectNamedPipe", error);
                DisconnectNamedPipe(pipe.get());
                return;
            }
        }
        // An exception from the receiver, or lack of memory, costs only this client its answer.
        try {
            goOn = serveOneClient(text);
        } catch (const std::exception& failure) {
            logGivenUp(failure.what());
        } catch (...) {
            logGivenUp("exception of an unknown type");
        }
        DisconnectNamedPipe(pipe.get());
    } while (goOn && !stopRequested());
}

// Returns false when the stop event ended the exchange.
bool CInterprocessCommunicationWin::serveOneClient(std::string& text)
{
    const Wake connected = waitForIo();
    if (connected != Wake::io)
        return connected != Wake::stop;

    if (!ReadFile(pipe.get(), receiveBuffer.get(), static_cast<DWORD>(sys::largestFrame), nullptr,
                  &overlapped)) {
        const DWORD error = GetLastError();
        if (error != ERROR_IO_PENDING && error != ERROR_MORE_DATA) {
            win32::logFailure(logSource, __LINE__, "ReadFile", error);
            return true;
        }
    }
    if (waitForIo() == Wake::stop)
        return false;

    DWORD received = 0;
    if (!GetOverlappedResult(pipe.get(), &overlapped, &received, FALSE)) {
        win32::logFailure(logSource, __LINE__, "GetOverlappedResult", GetLastError());
        return true;
    }
    deliver(received, text);
    return true;
}

void CInterprocessCommunicationWin::deliver(std::uint32_t received, std::string& text)
{
    if (!receiver)
        return;
    if (const auto request = sys::readRequest(receiveBuffer.get(), received)) {
        text.assign(request->text);
        receiver->onMessageFromOtherProcess(request->pid, text);
    }
    // A closing channel may have dropped the message, and the stored answer would belong to an
    // older one. Nor must closing wait for a client to read.
    if (stopRequested())
        return;
    // A request that was too short to be delivered gets what the receiver answered last.
    writeAnswer(receiver->answerText);
}

void CInterprocessCommunicationWin::writeAnswer(const std::string& answer)
{
    if (answer.empty())
        return;
    const std::size_t size = sys::writeFrame(sendBuffer.get(), GetCurrentProcessId(), answer);
    if (size == 0)
        return;
    DWORD written = 0;
    if (!WriteFile(pipe.get(), sendBuffer.get(), static_cast<DWORD>(size), &written, nullptr))
        win32::logFailure(logSource, __LINE__, "WriteFile", GetLastError());
}

CInterprocessCommunicationWin::Wake CInterprocessCommunicationWin::waitForIo() const
{
    const HANDLE events[] = {stopEvent.get(), ioEvent.get()};
    switch (WaitForMultipleObjects(2, events, FALSE, INFINITE)) {
    case WAIT_OBJECT_0:
        return Wake::stop;
    case WAIT_OBJECT_0 + 1:
        return Wake::io;
    default:
        win32::logFailure(logSource, __LINE__, "WaitForMultipleObjects", GetLastError());
        return Wake::failure;
    }
}
