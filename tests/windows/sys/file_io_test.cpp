#include "support/win32/unique_handle.h"
#include "tests/support/recorded_log.h"
#include "tests/windows/support/scratch_folder.h"
#include "tests/windows/support/standing_clock.h"
#include "ui/common/sys/file_io.h"
#include "ui/common/sys/replaceable.h"
#include "ui/common/sys/result_codes.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <future>
#include <string>
#include <vector>

using namespace std::chrono_literals;
using windows_tests::readBytes;
using windows_tests::ScratchFolder;
using windows_tests::writeBytes;

namespace {

win32::FileHandle openFile(const std::filesystem::path& path, DWORD access, DWORD sharing)
{
    return win32::FileHandle(
        CreateFileW(path.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
}

int openNothing(std::FILE** stream, const wchar_t*, const wchar_t*)
{
    *stream = nullptr;
    return 0;
}

// A stream whose size is known and whose bytes cannot be read.
int openForAppending(std::FILE** stream, const wchar_t* path, const wchar_t*)
{
    return _wfopen_s(stream, path, L"ab");
}

// A stream that gives fewer bytes than its size: one for each end of a line.
int openForText(std::FILE** stream, const wchar_t* path, const wchar_t*)
{
    return _wfopen_s(stream, path, L"rt");
}

// Ways to hold a file open that make _wfopen_s fail.
struct Hold
{
    const char* how;
    DWORD access;
    DWORD sharing;
};
constexpr Hold refusedHolds[] = {
    {"without sharing", GENERIC_READ, 0},
    {"for writing", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE},
    {"for reading and writing", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE},
};

win32::FileHandle holder; // closed during the read
int attempts;
int closedAt; // the attempt before which the file is let go

int countAttempts(std::FILE** stream, const wchar_t* path, const wchar_t* mode)
{
    if (++attempts == closedAt)
        holder.reset();
    return _wfopen_s(stream, path, mode);
}

std::wstring requestedMode;

int rememberMode(std::FILE** stream, const wchar_t* path, const wchar_t* mode)
{
    requestedMode = mode;
    return _wfopen_s(stream, path, mode);
}

class FileIo : public testing::Test
{
protected:
    // Creates the file and holds it open for reading.
    win32::FileHandle heldFile(DWORD sharing) const
    {
        writeBytes(file, "held");
        win32::FileHandle lock = openFile(file, GENERIC_READ, sharing);
        EXPECT_TRUE(lock);
        return lock;
    }

    const ScratchFolder scratch;
    const std::wstring file = scratch / L"file";
    std::string content = "before";
};

} // namespace

TEST_F(FileIo, ReadsTheExactBytes)
{
    const std::string bytes("a=1\r\nb\0c\x1A"
                            "d\xFF\n\n",
                            14);
    writeBytes(scratch / L"\u8A66 \u00E9.cfg", bytes);
    EXPECT_EQ(sys::readWholeFile(scratch / L"\u8A66 \u00E9.cfg", content), 0);
    EXPECT_EQ(content, bytes);
}

TEST_F(FileIo, ZeroLengthFileReadsAsTheEmptyString)
{
    writeBytes(scratch / L"empty", "");
    EXPECT_EQ(sys::readWholeFile(scratch / L"empty", content), 0);
    EXPECT_EQ(content, "");
}

TEST_F(FileIo, ReadOpensInBinary)
{
    writeBytes(file, "x");
    EXPECT_EQ(sys::readWholeFile(file, content, &rememberMode), 0);
    EXPECT_EQ(requestedMode, L"rb");
}

TEST_F(FileIo, OpenErrorsAreReturnedAndKeepTheContent)
{
    EXPECT_EQ(sys::readWholeFile(scratch / L"missing", content), ENOENT);
    EXPECT_EQ(sys::readWholeFile(scratch / L"no folder\\missing", content), ENOENT);
    EXPECT_EQ(sys::readWholeFile(scratch.path(), content), EACCES);
    const win32::FileHandle lock = heldFile(0);
    EXPECT_EQ(sys::readWholeFile(file, content), EACCES);
    EXPECT_EQ(content, "before");
}

TEST_F(FileIo, OpenWithoutAStreamHasItsOwnCode)
{
    EXPECT_EQ(sys::readWholeFile(L"any", content, &openNothing), 100007);
    EXPECT_EQ(content, "before");
}

TEST_F(FileIo, FailedReadHasItsOwnCode)
{
    writeBytes(file, "bytes");
    EXPECT_EQ(sys::readWholeFile(file, content, &openForAppending), 100004);
    EXPECT_EQ(content, "before");
}

TEST_F(FileIo, ReadWithoutABeginningHasTheSameCode)
{
    writeBytes(file, "\x1A"
                     "abc");
    // In a text the first byte means its end.
    EXPECT_EQ(sys::readWholeFile(file, content, &openForText), 100004);
    EXPECT_EQ(content, "before");
}

TEST_F(FileIo, ContentEndsWithTheLastByteThatCouldBeRead)
{
    writeBytes(file, "a\r\nb\r\n");
    EXPECT_EQ(sys::readWholeFile(file, content, &openForText), 0);
    EXPECT_EQ(content, "a\nb\n");
}

TEST_F(FileIo, ReadsOnceOthersHaveClosedTheFile)
{
    writeBytes(file, "bytes");
    const windows_tests::StandingClock clock([] { holder.reset(); });
    for (const Hold& hold : refusedHolds) {
        SCOPED_TRACE(hold.how);
        holder = openFile(file, hold.access, hold.sharing);
        ASSERT_TRUE(holder);
        content.clear();
        EXPECT_EQ(sys::readWholeFile(file, content), 0);
        EXPECT_FALSE(holder) << "it was read while it was held";
        EXPECT_EQ(content, "bytes");
    }
}

TEST_F(FileIo, ReadIsRepeatedAfterEverySharingViolation)
{
    writeBytes(file, "bytes");
    const windows_tests::StandingClock clock([] {});
    for (const Hold& hold : refusedHolds) {
        SCOPED_TRACE(hold.how);
        holder = openFile(file, hold.access, hold.sharing);
        ASSERT_TRUE(holder);
        attempts = 0;
        closedAt = 5;
        content.clear();
        EXPECT_EQ(sys::readWholeFile(file, content, &countAttempts), 0);
        EXPECT_EQ(attempts, closedAt);
        EXPECT_EQ(content, "bytes");
    }
}

TEST_F(FileIo, ReadGivesUpAfterHalfASecond)
{
    const win32::FileHandle lock = heldFile(0);
    attempts = 0;
    closedAt = 0;
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(sys::readWholeFile(file, content, &countAttempts), EACCES);
    const auto spent = std::chrono::steady_clock::now() - begun;
    EXPECT_GE(spent, 450ms);
    EXPECT_LT(spent, 30s);
    EXPECT_GT(attempts, 1);
    EXPECT_LT(attempts, 100) << "it pauses between two attempts";
    EXPECT_EQ(content, "before");
}

TEST_F(FileIo, ReadIsNotRepeatedAfterOtherErrors)
{
    attempts = 0;
    closedAt = 0;
    EXPECT_EQ(sys::readWholeFile(scratch / L"missing", content, &countAttempts), ENOENT);
    EXPECT_EQ(attempts, 1);
    EXPECT_EQ(sys::readWholeFile(scratch.path(), content, &countAttempts), EACCES);
    EXPECT_EQ(attempts, 2);
}

TEST_F(FileIo, WritesTheExactBytes)
{
    const std::string bytes = "a=1\nb\r\nc\x1A"
                              "d\xFF";
    EXPECT_EQ(sys::writeWholeFile(scratch / L"\u8A66 \u00E9.cfg", bytes), 0);
    EXPECT_EQ(readBytes(scratch / L"\u8A66 \u00E9.cfg"), bytes);
}

TEST_F(FileIo, WriteReplacesALongerFile)
{
    writeBytes(file, std::string(100000, 'x'));
    EXPECT_EQ(sys::writeWholeFile(file, "short"), 0);
    EXPECT_EQ(readBytes(file), "short");
    EXPECT_EQ(sys::writeWholeFile(file, ""), 0);
    EXPECT_EQ(readBytes(file), "");
}

TEST_F(FileIo, WriteEndsAtTheFirstNul)
{
    EXPECT_EQ(sys::writeWholeFile(file, std::string("a=1\0b=2\n", 8)), 0);
    EXPECT_EQ(readBytes(file), "a=1");
}

TEST_F(FileIo, WritesWhileOthersHoldTheFileOpen)
{
    writeBytes(file, "old");
    const win32::FileHandle other =
        openFile(file, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_TRUE(other);
    EXPECT_EQ(sys::writeWholeFile(file, "new"), 0);
    EXPECT_EQ(readBytes(file), "new");
}

TEST_F(FileIo, OthersOpenTheFileWhileItIsWritten)
{
    const std::string text(64U << 20U, 'x');
    bool seenUnfinished = false;
    for (int round = 0; round < 20 && !seenUnfinished; ++round) {
        writeBytes(file, "");
        std::future<int> result =
            std::async(std::launch::async, [&] { return sys::writeWholeFile(file, text); });
        while (!seenUnfinished && result.wait_for(0s) == std::future_status::timeout) {
            const win32::FileHandle other =
                openFile(file, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
            ASSERT_TRUE(other) << GetLastError();
            LARGE_INTEGER size = {};
            ASSERT_TRUE(GetFileSizeEx(other.get(), &size));
            seenUnfinished = size.QuadPart > 0 && size.QuadPart < LONGLONG(text.size());
        }
        ASSERT_EQ(result.get(), 0);
    }
    EXPECT_TRUE(seenUnfinished);
}

TEST_F(FileIo, WriteThatFailsHasItsOwnCode)
{
    EXPECT_EQ(sys::writeWholeFile(scratch.path(), "x"), 100004);
    EXPECT_EQ(sys::writeWholeFile(scratch / L"no folder\\file", "x"), 100004);
    {
        const win32::FileHandle lock = heldFile(FILE_SHARE_READ);
        EXPECT_EQ(sys::writeWholeFile(file, "new"), 100004);
    }
    EXPECT_EQ(readBytes(file), "held");
}

TEST_F(FileIo, FailureToOpenIsLogged)
{
    const win32::FileHandle lock = heldFile(0);
    const testing_support::RecordedLog log;
    sys::readWholeFile(file, content);
    sys::writeWholeFile(file, "new");
    const std::vector<Keelbase::LogRecord> records = log.records();
    ASSERT_EQ(records.size(), 2U);
    for (const Keelbase::LogRecord& record : records) {
        EXPECT_EQ(record.level, Keelbase::levelDetail);
        EXPECT_EQ(record.text.rfind("CreateFileW failed: 32 ", 0), 0U) << record.text;
    }
}

TEST_F(FileIo, FailureToReadIsLogged)
{
    writeBytes(file, "bytes");
    const testing_support::RecordedLog log;
    sys::readWholeFile(file, content, &openForAppending);
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records().front().text.rfind("ReadFile failed: ", 0), 0U);
}

// The bytes fit into the stream's buffer, so the disk refuses them no earlier than at the end.
TEST_F(FileIo, FullDiskFailsTheWriteAndIsLogged)
{
    const wchar_t* const alwaysFull = L"Z:\\dev\\full";
    if (!win32::FileHandle(
            CreateFileW(alwaysFull, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr)))
        GTEST_SKIP() << "there is no device here that is always full";
    const testing_support::RecordedLog log;
    EXPECT_EQ(sys::writeWholeFile(alwaysFull, "new"), 100004);
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records().front().text.rfind("WriteFile failed: ", 0), 0U);
}

TEST_F(FileIo, FoldersExistToo)
{
    writeBytes(scratch / L"\u8A66", "");
    EXPECT_TRUE(sys::fileExists(scratch / L"\u8A66"));
    EXPECT_TRUE(sys::fileExists(scratch.path()));
    EXPECT_FALSE(sys::fileExists(scratch / L"missing"));
    EXPECT_FALSE(sys::fileExists(L""));
}
