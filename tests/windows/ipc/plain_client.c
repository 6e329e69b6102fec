/*
 * A client of the program's pipe in plain C, written by docs/messages.md, without headers or code
 * of the program: an example for other programs of the suite.
 *
 *   plain_client TEXT    sends TEXT, prints the answer
 *
 * Exit codes: 0 answered, 1 the server disconnected without an answer, 2 no server, 3 still busy
 * after ten seconds, 4 bad usage, 5 the answer is not a frame.
 */
#include <stdio.h>
#include <string.h>

#include <windows.h>

#define PIPE_PATH L"\\\\.\\pipe\\DF467A07-9FF8-46A9-B701-2D3ADDD9BE3B_Uninstall"
#define HEADER 9
#define LARGEST 65535

static unsigned char request[LARGEST];
static unsigned char answer[LARGEST];

static DWORD buildFrame(const char* text)
{
    const size_t length = strlen(text);
    const size_t total = HEADER + length;
    const DWORD pid = GetCurrentProcessId();
    if (total > LARGEST)
        return 0;
    request[0] = 1;
    request[1] = 0;
    request[2] = 0;
    request[3] = (unsigned char)(total >> 8);
    request[4] = (unsigned char)(total & 0xff);
    request[5] = (unsigned char)(pid >> 24);
    request[6] = (unsigned char)((pid >> 16) & 0xff);
    request[7] = (unsigned char)((pid >> 8) & 0xff);
    request[8] = (unsigned char)(pid & 0xff);
    memcpy(request + HEADER, text, length);
    return (DWORD)total;
}

static HANDLE openPipe(void)
{
    const ULONGLONG end = GetTickCount64() + 10000;
    for (;;) {
        HANDLE pipe =
            CreateFileW(PIPE_PATH, GENERIC_READ | GENERIC_WRITE, 0, NULL, OPEN_EXISTING, 0, NULL);
        if (pipe != INVALID_HANDLE_VALUE || GetLastError() != ERROR_PIPE_BUSY)
            return pipe;
        if (GetTickCount64() >= end || !WaitNamedPipeW(PIPE_PATH, 10000)) {
            SetLastError(ERROR_PIPE_BUSY);
            return INVALID_HANDLE_VALUE;
        }
    }
}

int main(int argc, char** argv)
{
    DWORD size, received = 0, mode = PIPE_READMODE_MESSAGE;
    HANDLE pipe;
    BOOL answered;

    if (argc != 2 || (size = buildFrame(argv[1])) == 0)
        return 4;
    pipe = openPipe();
    if (pipe == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_PIPE_BUSY ? 3 : 2;
    answered = SetNamedPipeHandleState(pipe, &mode, NULL, NULL) &&
               TransactNamedPipe(pipe, request, size, answer, LARGEST, &received, NULL);
    CloseHandle(pipe);
    if (!answered)
        return 1;
    if (received < HEADER + 1 || answer[0] != 1 || (DWORD)(answer[3] * 256 + answer[4]) != received)
        return 5;
    fwrite(answer + HEADER, 1, received - HEADER, stdout);
    return 0;
}
