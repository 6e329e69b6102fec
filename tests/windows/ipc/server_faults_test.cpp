// The server's thread when one of the system's functions fails, or its receiver does.

#include "tests/support/import_slot.h"
#include "tests/support/recorded_log.h"
#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/support/unique_name.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <functional>
#include <new>

using namespace ipctest;

namespace {

// The function whose next call by a server's thread fails; null: none.
std::atomic<const char*> failing{nullptr};
std::atomic<DWORD> errorOfFailure{0};
const DWORD testThread = GetCurrentThreadId();

void failOnce(const char* function, DWORD error)
{
    errorOfFailure = error;
    failing = function;
}

bool fails(const char* function)
{
    const char* const next = failing;
    if (GetCurrentThreadId() == testThread || next == nullptr || std::strcmp(next, function) != 0)
        return false;
    failing = nullptr;
    SetLastError(errorOfFailure);
    return true;
}

// Signalled when the server listens: the first from the start, the second from a failed wait on.
std::atomic<const NamedEvent*> listening{nullptr};
std::atomic<const NamedEvent*> listeningAgain{nullptr};

decltype(&ConnectNamedPipe) systemConnect = nullptr;
BOOL WINAPI connectOrFail(HANDLE pipe, LPOVERLAPPED overlapped)
{
    const BOOL done = fails("ConnectNamedPipe") ? FALSE : systemConnect(pipe, overlapped);
    const DWORD error = GetLastError();
    listening.load()->set();
    SetLastError(error);
    return done;
}

decltype(&ReadFile) systemRead = nullptr;
BOOL WINAPI readOrFail(HANDLE file, LPVOID bytes, DWORD size, LPDWORD read, LPOVERLAPPED overlapped)
{
    return fails("ReadFile") ? FALSE : systemRead(file, bytes, size, read, overlapped);
}

decltype(&WriteFile) systemWrite = nullptr;
BOOL WINAPI writeOrFail(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                        LPOVERLAPPED overlapped)
{
    return fails("WriteFile") ? FALSE : systemWrite(file, bytes, size, written, overlapped);
}

decltype(&GetOverlappedResult) systemResult = nullptr;
BOOL WINAPI resultOrFail(HANDLE file, LPOVERLAPPED overlapped, LPDWORD size, BOOL wait)
{
    return fails("GetOverlappedResult") ? FALSE : systemResult(file, overlapped, size, wait);
}

decltype(&WaitForMultipleObjects) systemWait = nullptr;
DWORD WINAPI waitOrFail(DWORD count, const HANDLE* objects, BOOL all, DWORD milliseconds)
{
    if (!fails("WaitForMultipleObjects"))
        return systemWait(count, objects, all, milliseconds);
    listening.store(listeningAgain);
    return WAIT_FAILED;
}

// Echoes each text.
class Receiver : public IMessageFromOtherProcess
{
public:
    void onMessageFromOtherProcess(unsigned long, const std::string& text) override
    {
        if (beforeAnswer)
            beforeAnswer();
        answerText = text;
    }

    std::function<void()> beforeAnswer;
};

class ServerFaults : public testing::Test
{
protected:
    ServerFaults()
    {
        listening = &listens;
        listeningAgain = &listensAgain;
        systemConnect = connect.original();
        channel.claimMutex();
        channel.receiver = &receiver;
    }
    ~ServerFaults() override { channel.close(); }

    // Returns when clients may come.
    void serve()
    {
        ASSERT_EQ(channel.createServer(), 0);
        ASSERT_TRUE(listens.wait());
    }

    static Bytes answerTo(const char* text) { return Stranger().transact(frame(1, text)); }
    static Bytes echo(const char* text) { return frame(GetCurrentProcessId(), text); }

    std::vector<std::string> logged()
    {
        channel.close();
        std::vector<std::string> texts;
        for (const Keelbase::LogRecord& record : log.records())
            texts.push_back(record.text.substr(0, record.text.find(" (")));
        return texts;
    }

    const NamedEvent listens{uniqueName(L"tessera_ipc_listens")};
    const NamedEvent listensAgain{uniqueName(L"tessera_ipc_listens_again")};
    const ReplacedImport<decltype(&ConnectNamedPipe)> connect{"ConnectNamedPipe", &connectOrFail};
    const testing_support::RecordedLog log;
    Receiver receiver;
    CInterprocessCommunicationWin channel;
};

using Texts = std::vector<std::string>;

TEST_F(ServerFaults, WithoutOneNothingIsLogged)
{
    serve();
    EXPECT_EQ(answerTo("one"), echo("one"));
    EXPECT_EQ(answerTo("two"), echo("two"));
    EXPECT_EQ(logged(), Texts());
}

TEST_F(ServerFaults, FailureToListenEndsServingAndIsLogged)
{
    failOnce("ConnectNamedPipe", ERROR_PIPE_CONNECTED);
    serve();
    EXPECT_EQ(logged(), Texts{"ConnectNamedPipe failed: 535"});
}

TEST_F(ServerFaults, FailureToReadCostsOneAnswerAndIsLogged)
{
    const ReplacedImport read("ReadFile", &readOrFail);
    systemRead = read.original();
    serve();
    failOnce("ReadFile", ERROR_BROKEN_PIPE);
    EXPECT_EQ(answerTo("lost"), Bytes());
    EXPECT_EQ(answerTo("next"), echo("next"));
    EXPECT_EQ(logged(), Texts{"ReadFile failed: 109"});
}

TEST_F(ServerFaults, RequestThatCannotBeFetchedCostsOneAnswerAndIsLogged)
{
    const ReplacedImport result("GetOverlappedResult", &resultOrFail);
    systemResult = result.original();
    serve();
    failOnce("GetOverlappedResult", ERROR_BROKEN_PIPE);
    EXPECT_EQ(answerTo("lost"), Bytes());
    EXPECT_EQ(answerTo("next"), echo("next"));
    EXPECT_EQ(logged(), Texts{"GetOverlappedResult failed: 109"});
}

TEST_F(ServerFaults, FailureToAnswerCostsOneAnswerAndIsLogged)
{
    const ReplacedImport write("WriteFile", &writeOrFail);
    systemWrite = write.original();
    serve();
    failOnce("WriteFile", ERROR_NO_DATA);
    EXPECT_EQ(answerTo("lost"), Bytes());
    EXPECT_EQ(answerTo("next"), echo("next"));
    EXPECT_EQ(logged(), Texts{"WriteFile failed: 232"});
}

TEST_F(ServerFaults, FailureToWaitForAClientIsLoggedAndTheNextIsServed)
{
    const ReplacedImport wait("WaitForMultipleObjects", &waitOrFail);
    systemWait = wait.original();
    serve();
    // During a delivery, so that it is the wait for the next client that fails.
    receiver.beforeAnswer = [] { failOnce("WaitForMultipleObjects", ERROR_INVALID_HANDLE); };
    EXPECT_EQ(answerTo("one"), echo("one"));
    receiver.beforeAnswer = nullptr;
    ASSERT_TRUE(listensAgain.wait());
    EXPECT_EQ(answerTo("two"), echo("two"));
    EXPECT_EQ(logged(), Texts{"WaitForMultipleObjects failed: 6"});
}

TEST_F(ServerFaults, FirstDeliveryThatFailsCostsOneAnswer)
{
    receiver.beforeAnswer = [] { throw std::bad_alloc(); };
    serve();
    EXPECT_EQ(answerTo("lost"), Bytes());
    receiver.beforeAnswer = nullptr;
    EXPECT_EQ(answerTo("next"), echo("next"));
}

} // namespace
