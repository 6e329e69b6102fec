#include "tests/support/lines.h"
#include "tests/windows/support/child_process.h"
#include "tests/windows/support/scratch_folder.h"
#include "ui/common/sys/folders.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <optional>
#include <string>

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using windows_tests::ChildProcess;

namespace {

// An exception has left main() of a windowed program.
class UncaughtException : public testing::Test
{
protected:
    UncaughtException()
    {
        std::filesystem::remove(log);
        ChildProcess thrower(windows_tests::siblingProgram(L"thrower"), {}, {false, true});
        exitCode = thrower.waitForExit();
        if (exitCode)
            output = thrower.output();
    }

    const std::filesystem::path log =
        sys::joinedPath(sys::folderPath(sys::FolderKind::logs), L"thrower.log");
    std::optional<DWORD> exitCode;
    std::string output;
};

// On Windows, though not under Wine, abort() opens a message box and waits for an answer.
TEST_F(UncaughtException, EndsTheProgramWithoutAMessageBox)
{
    EXPECT_EQ(exitCode, 3U);
    EXPECT_THAT(output, Not(HasSubstr("aborted")));
}

TEST_F(UncaughtException, DestroysWhatLivesInMain)
{
    EXPECT_THAT(output, HasSubstr("destroyed"));
}

TEST_F(UncaughtException, IsLogged)
{
    EXPECT_THAT(testing_support::linesOf(windows_tests::readBytes(log)),
                ElementsAre(EndsWith("| Ended by an exception: std::bad_alloc")));
}

} // namespace
