#include "tests/windows/ipc/pipe_stranger.h"

namespace ipctest {

const wchar_t* const pipePath = L"\\\\.\\pipe\\DF467A07-9FF8-46A9-B701-2D3ADDD9BE3B_Uninstall";

namespace {

constexpr DWORD largest = 65535;

} // namespace

Bytes frame(std::uint32_t pid, const std::string& text)
{
    const std::size_t total = text.size() + 9;
    Bytes bytes = {1, 0, 0};
    for (const std::size_t part : {total >> 8, total})
        bytes.push_back(static_cast<std::uint8_t>(part & 0xff));
    for (const unsigned shift : {24u, 16u, 8u, 0u})
        bytes.push_back(static_cast<std::uint8_t>((pid >> shift) & 0xff));
    bytes.insert(bytes.end(), text.begin(), text.end());
    return bytes;
}

Stranger::Stranger(milliseconds deadline)
{
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(deadline.count());
    for (ULONGLONG now = GetTickCount64();; now = GetTickCount64()) {
        pipe.reset(CreateFileW(pipePath, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0,
                               nullptr));
        if (pipe)
            break;
        lastError = GetLastError();
        // Another client may connect between the wait's end and the next open.
        if (lastError != ERROR_PIPE_BUSY || now >= end ||
            !WaitNamedPipeW(pipePath, static_cast<DWORD>(end - now)))
            return;
    }
    lastError = 0;
    DWORD mode = PIPE_READMODE_MESSAGE;
    if (!SetNamedPipeHandleState(pipe.get(), &mode, nullptr, nullptr))
        lastError = GetLastError();
}

bool Stranger::write(const Bytes& message)
{
    DWORD written = 0;
    const bool good = WriteFile(pipe.get(), message.data(), static_cast<DWORD>(message.size()),
                                &written, nullptr) != FALSE;
    lastError = good ? 0 : GetLastError();
    return good && written == message.size();
}

Bytes Stranger::read()
{
    Bytes answer(largest);
    DWORD size = 0;
    const bool good = ReadFile(pipe.get(), answer.data(), largest, &size, nullptr) != FALSE;
    lastError = good ? 0 : GetLastError();
    answer.resize(good ? size : 0);
    return answer;
}

Bytes Stranger::transact(const Bytes& message)
{
    Bytes request = message;
    Bytes answer(largest);
    DWORD size = 0;
    const bool good =
        TransactNamedPipe(pipe.get(), request.data(), static_cast<DWORD>(request.size()),
                          answer.data(), largest, &size, nullptr) != FALSE;
    lastError = good ? 0 : GetLastError();
    answer.resize(good ? size : 0);
    return answer;
}

int serveForSure(CInterprocessCommunicationWin& channel)
{
    const win32::KernelHandle never(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    int result = channel.createServer();
    for (DWORD pause = 20; result == 0; pause *= 2) { // ms
        WaitForSingleObject(never.get(), pause);
        if (serverTakesClients())
            break;
        channel.close();
        result = channel.createServer();
    }
    return result;
}

bool serverTakesClients()
{
    {
        Stranger probe;
        if (!probe.connected())
            return false;
        probe.transact({1});
    }
    constexpr DWORD soon = 2000; // ms; after the thread's end the pipe stays busy
    return WaitNamedPipeW(pipePath, soon) != FALSE;
}

StrangeServer::StrangeServer()
    : pipe(CreateNamedPipeW(pipePath, PIPE_ACCESS_DUPLEX,
                            PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE | PIPE_WAIT, 1, 100000,
                            100000, 0, nullptr))
{}

bool StrangeServer::waitForClient()
{
    if (ConnectNamedPipe(pipe.get(), nullptr))
        return true;
    // A client has connected before the call, and may have disconnected since.
    return GetLastError() == ERROR_PIPE_CONNECTED || GetLastError() == ERROR_NO_DATA;
}

Bytes StrangeServer::read()
{
    Bytes request(100000);
    DWORD size = 0;
    if (!ReadFile(pipe.get(), request.data(), static_cast<DWORD>(request.size()), &size, nullptr))
        size = 0;
    request.resize(size);
    return request;
}

bool StrangeServer::write(const Bytes& message)
{
    DWORD written = 0;
    return WriteFile(pipe.get(), message.data(), static_cast<DWORD>(message.size()), &written,
                     nullptr) != FALSE;
}

void StrangeServer::hangUp()
{
    DisconnectNamedPipe(pipe.get());
}

} // namespace ipctest
