#pragma once

// The lower bound of one exchange over the program's pipe: only the system calls, with the same
// names, modes and sizes.

#include "support/win32/unique_handle.h"

#include <string>
#include <vector>

#include <windows.h>

namespace bench {

// Echoes each frame, one client at a time, until `stop` is signalled. Gives up after a minute
// without a client or a frame, which also ends a client's wait for its answer.
void serveBare(HANDLE stop, HANDLE ready);

class BareClient
{
public:
    BareClient();
    // False while the server is busy with the previous exchange.
    bool connect();
    // The size of the answer, 0 when there is none.
    DWORD exchange(std::vector<unsigned char>& request);
    void close() { pipe.reset(); }

private:
    std::wstring path;
    std::vector<unsigned char> answer;
    win32::FileHandle pipe;
};

} // namespace bench
