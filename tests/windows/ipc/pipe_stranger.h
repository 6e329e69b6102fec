#pragma once

// The pipe as a foreign program uses it: by system calls only.

#include "tests/windows/support/child_process.h"
#include "ui/common/sys/interprocess_communication_win.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ipctest {

using namespace windows_tests;

using Bytes = std::vector<std::uint8_t>;

// The path of the program's pipe.
extern const wchar_t* const pipePath;

// A frame with a correct header.
Bytes frame(std::uint32_t pid, const std::string& text);

// A client. Move-only.
class Stranger
{
public:
    // Waits until the server accepts the client; connected() is false when that takes too long.
    explicit Stranger(milliseconds deadline = patience);

    bool connected() const { return static_cast<bool>(pipe); }
    // The last operation's error, 0 after success.
    DWORD error() const { return lastError; }

    bool write(const Bytes& message);
    // One message; empty with error() set when the server has disconnected.
    Bytes read();
    // Writes a message and reads the answer in one step, so that the answer is not lost when the
    // server disconnects right after it.
    Bytes transact(const Bytes& message);
    HANDLE handle() const { return pipe.get(); }
    void disconnect() { pipe.reset(); }

private:
    win32::FileHandle pipe;
    DWORD lastError = 0;
};

// True when the server thread accepts clients: it disconnects one whose request is too short to be
// delivered, and listens for the next.
bool serverTakesClients();

// Calls channel.createServer() until the server thread accepts clients, and returns its result. A
// client that connects before the thread's first wait ends the thread; nothing announces that wait.
// So each start is given some time, doubled after a failure.
int serveForSure(CInterprocessCommunicationWin& channel);

// A server with one pipe instance, without the program's classes.
class StrangeServer
{
public:
    StrangeServer();
    bool created() const { return static_cast<bool>(pipe); }
    // Blocks until a client has connected.
    bool waitForClient();
    Bytes read();
    bool write(const Bytes& message);
    void hangUp();

private:
    win32::FileHandle pipe;
};

} // namespace ipctest
