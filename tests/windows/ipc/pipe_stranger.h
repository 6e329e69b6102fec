#pragma once

// The pipe as a program of other origin sees it: the platform's calls only, no class of ours.

#include "tests/windows/support/child_process.h"
#include "ui/common/sys/interprocess_communication_win.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ipctest {

using namespace windows_tests;

using Bytes = std::vector<std::uint8_t>;

// \\.\pipe\ and the name that the program's copies meet under.
extern const wchar_t* const pipePath;

// A frame with the header as any sender writes it.
Bytes frame(std::uint32_t pid, const std::string& text);

// A client. Move-only.
class Stranger
{
public:
    // Waits until the server takes a client. connected() is false when that takes too long.
    explicit Stranger(milliseconds deadline = patience);

    bool connected() const { return static_cast<bool>(pipe); }
    // Error of the last operation, 0 after a good one.
    DWORD error() const { return lastError; }

    bool write(const Bytes& message);
    // One message; empty with error() set when none comes because the server has hung up.
    Bytes read();
    // Writes a message and reads the answer in one step, so that the server's hanging up right
    // after its answer cannot lose it.
    Bytes transact(const Bytes& message);
    HANDLE handle() const { return pipe.get(); }
    void disconnect() { pipe.reset(); }

private:
    win32::FileHandle pipe;
    DWORD lastError = 0;
};

// True when the server thread takes clients: it hangs up on a request that is too short to be
// delivered, and then listens again.
bool serverTakesClients();

// channel.createServer(), and again until the server thread takes clients. A client that comes
// before the thread's first wait ends the thread; a test that is about something else must not be
// that client, so the thread gets a moment first, and a longer one each time that was too short.
int serveForSure(CInterprocessCommunicationWin& channel);

// A server of one pipe instance, without the program's class.
class StrangeServer
{
public:
    StrangeServer();
    bool created() const { return static_cast<bool>(pipe); }
    // Blocks until a client is there; it may have come before.
    bool waitForClient();
    Bytes read();
    bool write(const Bytes& message);
    void hangUp();

private:
    win32::FileHandle pipe;
};

} // namespace ipctest
