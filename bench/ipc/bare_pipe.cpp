#include "bench/ipc/bare_pipe.h"

#include "bench/support/give_up.h"

namespace bench {

namespace {

constexpr DWORD largest = 65535;
constexpr DWORD longestWait = 60000; // ms
constexpr const wchar_t* pipeName = L"DF467A07-9FF8-46A9-B701-2D3ADDD9BE3B_Uninstall";

// False when `stop` was signalled instead.
bool completes(HANDLE io, HANDLE stop)
{
    const HANDLE either[] = {stop, io};
    const DWORD signalled = WaitForMultipleObjects(2, either, FALSE, longestWait);
    if (signalled == WAIT_TIMEOUT)
        giveUp("a server hears nothing from its client");
    return signalled == WAIT_OBJECT_0 + 1;
}

} // namespace

void serveBare(HANDLE stop, HANDLE ready)
{
    const std::wstring path = std::wstring(L"\\\\.\\pipe\\") + pipeName;
    const win32::FileHandle pipe(
        CreateNamedPipeW(path.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED,
                         PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE | PIPE_WAIT,
                         PIPE_UNLIMITED_INSTANCES, largest, largest, 15000, nullptr));
    const win32::KernelHandle io(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    OVERLAPPED overlapped = {};
    overlapped.hEvent = io.get();
    std::vector<unsigned char> buffer(largest);
    for (bool first = true;; first = false) {
        ConnectNamedPipe(pipe.get(), &overlapped);
        if (first)
            SetEvent(ready);
        if (!completes(io.get(), stop))
            return;
        ReadFile(pipe.get(), buffer.data(), largest, nullptr, &overlapped);
        if (!completes(io.get(), stop))
            return;
        DWORD size = 0;
        DWORD written = 0;
        if (GetOverlappedResult(pipe.get(), &overlapped, &size, FALSE) && size > 0)
            WriteFile(pipe.get(), buffer.data(), size, &written, nullptr);
        DisconnectNamedPipe(pipe.get());
    }
}

BareClient::BareClient() : answer(largest)
{
    wchar_t computer[16] = {};
    DWORD size = 16;
    GetComputerNameW(computer, &size);
    path = std::wstring(L"\\\\") + computer + L"\\pipe\\" + pipeName;
}

bool BareClient::connect()
{
    pipe.reset(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                           FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                           FILE_ATTRIBUTE_NORMAL, nullptr));
    return static_cast<bool>(pipe);
}

DWORD BareClient::exchange(std::vector<unsigned char>& request)
{
    DWORD size = 0;
    if (!TransactNamedPipe(pipe.get(), request.data(), static_cast<DWORD>(request.size()),
                           answer.data(), largest, &size, nullptr))
        return 0;
    return size;
}

} // namespace bench
