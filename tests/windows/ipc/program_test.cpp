// Two starts of the real program.

#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/ipc/running_program.h"
#include "tests/windows/support/unique_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ipctest;
using testing::HasSubstr;

namespace {

// Registers applications for the duration of a test.
class RegisteredApplications
{
public:
    RegisteredApplications() { clear(); }
    ~RegisteredApplications() { clear(); }

    void add(const std::wstring& displayName, const std::wstring& idString) const
    {
        const std::wstring command =
            siblingProgram(L"ipc_peer") + L" /log=C:\\logs\\" + idString + L"_uninstall.log";
        RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Corvane\\UninstPaths", displayName.c_str(),
                        REG_SZ, command.c_str(),
                        static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t)));
    }

private:
    static void clear() { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Corvane"); }
};

// Whether a copy that the test starts may bring windows to the front: Windows gives that right only
// to processes of the window in use and those that they start. Wine gives it to all.
bool hasForegroundRight()
{
    return AllowSetForegroundWindow(GetCurrentProcessId()) != FALSE;
}

class Program : public testing::Test
{
protected:
    void SetUp() override { clearLogs(); }

    static void expectPassedOn(const SecondStart& second)
    {
        EXPECT_EQ(second.exitCode, 0u);
        EXPECT_FALSE(second.showedAWindow);
    }
};

class StartedProgram : public Program
{
protected:
    void SetUp() override
    {
        Program::SetUp();
        ASSERT_TRUE(first.ready());
    }
    void TearDown() override
    {
        if (first.running()) {
            EXPECT_EQ(first.close(), 0u);
        }
    }

    RunningProgram first;
};

TEST_F(StartedProgram, SecondStartShowsTheFirstsWindowAndEnds)
{
    const bool comesToFront = hasForegroundRight();
    const SecondStart second = startSecond(first, {});
    expectPassedOn(second);
    if (comesToFront) {
        EXPECT_TRUE(becomesTrue([this] { return GetForegroundWindow() == first.window(); }));
    }
    EXPECT_EQ(programWindows(), std::vector<HWND>{first.window()});
    EXPECT_THAT(programLogs(), HasSubstr(". MSG: /show\n"));
}

TEST_F(StartedProgram, SecondStartPassesItsArgumentsOn)
{
    expectPassedOn(startSecond(first, {L"/app", L"ClipTrimmer"}));
    EXPECT_THAT(programLogs(), HasSubstr(". MSG: /app ClipTrimmer\n"));
}

TEST_F(StartedProgram, SecondStartRestoresAMinimisedWindow)
{
    ShowWindow(first.window(), SW_MINIMIZE);
    ASSERT_TRUE(becomesTrue([this] { return IsIconic(first.window()) != FALSE; }));
    const bool comesToFront = hasForegroundRight();
    expectPassedOn(startSecond(first, {}));
    EXPECT_FALSE(IsIconic(first.window()));
    if (comesToFront) {
        EXPECT_TRUE(becomesTrue([this] { return GetForegroundWindow() == first.window(); }));
    }
}

TEST_F(StartedProgram, SecondStartCanMinimiseTheWindow)
{
    expectPassedOn(startSecond(first, {L"/show", L"/minimized"}));
    EXPECT_TRUE(becomesTrue([this] { return IsIconic(first.window()) != FALSE; }));
}

TEST_F(StartedProgram, PlainClientLearnsTheWindowsHandle)
{
    ChildProcess client(siblingProgram(L"plain_client"), {L"/gethwnd"}, {false, true});
    ASSERT_EQ(client.waitForExit(), 0u);
    const auto low = static_cast<int>(reinterpret_cast<std::intptr_t>(first.window()));
    EXPECT_EQ(client.output(), std::to_string(low));
}

TEST_F(StartedProgram, UnknownTextsAreLoggedAndNotAnswered)
{
    ChildProcess client(siblingProgram(L"plain_client"), {L"hello there"}, {false, true});
    EXPECT_EQ(client.waitForExit(), 1u);
    EXPECT_THAT(programLogs(), HasSubstr(". MSG: hello there\n"));
}

TEST_F(StartedProgram, ClosesWhileAStrangerIsConnected)
{
    Stranger silent;
    ASSERT_TRUE(silent.connected());
    EXPECT_EQ(first.close(), 0u);
}

TEST_F(StartedProgram, AnswersManyMessagesInARow)
{
    const Bytes expected = [] {
        Stranger client;
        return client.transact(frame(1, "/gethwnd"));
    }();
    ASSERT_GT(expected.size(), 9u);
    for (int i = 0; i < 300; ++i) {
        Stranger client;
        ASSERT_TRUE(client.connected());
        ASSERT_EQ(client.transact(frame(1, "/gethwnd")), expected) << i;
    }
}

TEST_F(Program, SecondStartReachesAFirstWithAModalBoxOpen)
{
    const RegisteredApplications registry;
    registry.add(L"Clip Trimmer", L"ClipTrimmer");
    // The application is running, so the first copy asks before it removes it.
    const win32::KernelHandle running(
        CreateMutexW(nullptr, FALSE, L"Global\\Lumacraft_ClipTrimmer"));
    ASSERT_TRUE(running);
    const RunningProgram first({L"/app", L"ClipTrimmer"});
    ASSERT_TRUE(first.ready());
    first.clickUninstall();
    ASSERT_TRUE(becomesTrue([&first] { return modalBoxOf(first.pid()) != nullptr; }));
    const HWND box = modalBoxOf(first.pid());

    expectPassedOn(startSecond(first, {L"/app", L"While asking"}));
    EXPECT_THAT(programLogs(), HasSubstr(". MSG: /app While asking\n"));
    EXPECT_EQ(modalBoxOf(first.pid()), box);

    PostMessageW(box, WM_CLOSE, 0, 0); // like Cancel: the run and the program end
    EXPECT_EQ(first.waitForExit(), 0u);
}

TEST_F(Program, SecondStartReachesAFirstThatIsUninstalling)
{
    const RegisteredApplications registry;
    for (const wchar_t* name : {L"One", L"Two", L"Three", L"Four", L"Five", L"Six"})
        registry.add(name, name);
    const std::wstring name = uniqueName(L"tessera_ipc_uninstaller");
    const NamedEvent removing(name + L"_removing");
    const NamedEvent removed(name + L"_removed");
    SetEnvironmentVariableW(L"TESSERA_IPC_UNINSTALLER", name.c_str());
    const RunningProgram first;
    SetEnvironmentVariableW(L"TESSERA_IPC_UNINSTALLER", nullptr);
    ASSERT_TRUE(first.ready());
    first.clickSelectAll();
    first.clickUninstall();
    ASSERT_TRUE(removing.wait());

    // The program waits two seconds for each of the six.
    const SecondStart second = startSecond(first, {L"/app", L"While removing"});
    EXPECT_TRUE(first.running());
    expectPassedOn(second);
    EXPECT_THAT(programLogs(), HasSubstr(". MSG: /app While removing\n"));

    removed.set();
    EXPECT_EQ(first.waitForExit(), 0u);
}

} // namespace
