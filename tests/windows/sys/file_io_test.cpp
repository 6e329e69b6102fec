#include "support/win32/unique_handle.h"
#include "tests/support/recorded_log.h"
#include "tests/windows/support/scratch_folder.h"
#include "ui/common/sys/file_io.h"
#include "ui/common/sys/replaceable.h"
#include "ui/common/sys/result_codes.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <future>
#include <share.h>
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

// Ways to hold a file open that make _wfopen_s fail on Windows.
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

win32::FileHandle holder; // closed at attempt `closedAt`
int attempts;
int closedAt;

// Shares like _wfopen_s on Windows. Wine's shares with everyone.
int openSecurely(std::FILE** stream, const wchar_t* path, const wchar_t* mode)
{
    if (++attempts == closedAt)
        holder.reset();
    *stream = _wfsopen(path, mode, _SH_DENYWR);
    return *stream != nullptr ? 0 : errno;
}

std::wstring requestedMode;

int rememberMode(std::FILE** stream, const wchar_t* path, const wchar_t* mode)
{
    requestedMode = mode;
    return _wfopen_s(stream, path, mode);
}

} // namespace

TEST(FileIo, ReadsTheExactBytes)
{
    const ScratchFolder scratch;
    const std::string bytes("a=1\r\nb\0c\x1A"
                            "d\xFF\n\n",
                            14);
    writeBytes(scratch / L"\u8A66 \u00E9.cfg", bytes);
    std::string content = "before";
    EXPECT_EQ(sys::readWholeFile(scratch / L"\u8A66 \u00E9.cfg", content), 0);
    EXPECT_EQ(content, bytes);
}

TEST(FileIo, ZeroLengthFileReadsAsTheEmptyString)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"empty", "");
    std::string content = "before";
    EXPECT_EQ(sys::readWholeFile(scratch / L"empty", content), 0);
    EXPECT_EQ(content, "");
}

TEST(FileIo, ReadOpensInBinary)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", "x");
    std::string content;
    EXPECT_EQ(sys::readWholeFile(scratch / L"file", content, &rememberMode), 0);
    EXPECT_EQ(requestedMode, L"rb");
}

TEST(FileIo, OpenErrorsAreReturnedAndKeepTheContent)
{
    const ScratchFolder scratch;
    std::string content = "before";
    EXPECT_EQ(sys::readWholeFile(scratch / L"missing", content), ENOENT);
    EXPECT_EQ(sys::readWholeFile(scratch / L"no folder\\missing", content), ENOENT);
    EXPECT_EQ(sys::readWholeFile(scratch.path(), content), EACCES);
    writeBytes(scratch / L"locked", "x");
    const win32::FileHandle lock = openFile(scratch / L"locked", GENERIC_READ, 0);
    ASSERT_TRUE(lock);
    EXPECT_EQ(sys::readWholeFile(scratch / L"locked", content), EACCES);
    EXPECT_EQ(content, "before");
}

TEST(FileIo, OpenWithoutAStreamHasItsOwnCode)
{
    std::string content = "before";
    EXPECT_EQ(sys::readWholeFile(L"any", content, &openNothing), 100007);
    EXPECT_EQ(content, "before");
}

TEST(FileIo, FailedReadHasItsOwnCode)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", "bytes");
    std::string content = "before";
    EXPECT_EQ(sys::readWholeFile(scratch / L"file", content, &openForAppending), 100004);
    EXPECT_EQ(content, "before");
}

TEST(FileIo, ContentEndsWithTheLastByteThatCouldBeRead)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", "a\r\nb\r\n");
    std::string content;
    EXPECT_EQ(sys::readWholeFile(scratch / L"file", content, &openForText), 0);
    EXPECT_EQ(content, "a\nb\n");
}

TEST(FileIo, ReadsOnceOthersHaveClosedTheFile)
{
    const ScratchFolder scratch;
    const std::wstring file = scratch / L"file";
    writeBytes(file, "bytes");
    for (const Hold& hold : refusedHolds) {
        SCOPED_TRACE(hold.how);
        win32::FileHandle other = openFile(file, hold.access, hold.sharing);
        ASSERT_TRUE(other);
        std::string content;
        std::promise<void> begun;
        std::future<int> result = std::async(std::launch::async, [&] {
            begun.set_value();
            return sys::readWholeFile(file, content);
        });
        begun.get_future().wait();
        if (hold.sharing == 0) {
            EXPECT_EQ(result.wait_for(20ms), std::future_status::timeout) << "it keeps trying";
        }
        other.reset();
        EXPECT_EQ(result.get(), 0);
        EXPECT_EQ(content, "bytes");
    }
}

TEST(FileIo, ReadIsRepeatedAfterEverySharingViolation)
{
    const ScratchFolder scratch;
    const std::wstring file = scratch / L"file";
    writeBytes(file, "bytes");
    for (const Hold& hold : refusedHolds) {
        SCOPED_TRACE(hold.how);
        holder = openFile(file, hold.access, hold.sharing);
        ASSERT_TRUE(holder);
        attempts = 0;
        closedAt = 5;
        std::string content;
        EXPECT_EQ(sys::readWholeFile(file, content, &openSecurely), 0);
        EXPECT_EQ(attempts, closedAt);
        EXPECT_EQ(content, "bytes");
    }
}

TEST(FileIo, ReadGivesUpAfterHalfASecond)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"locked", "x");
    const win32::FileHandle lock = openFile(scratch / L"locked", GENERIC_READ, 0);
    ASSERT_TRUE(lock);
    std::string content = "before";
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(sys::readWholeFile(scratch / L"locked", content), EACCES);
    const auto spent = std::chrono::steady_clock::now() - begun;
    EXPECT_GE(spent, 450ms);
    EXPECT_LT(spent, 5s);
    EXPECT_EQ(content, "before");
}

TEST(FileIo, ReadIsNotRepeatedAfterOtherErrors)
{
    const ScratchFolder scratch;
    std::string content;
    attempts = 0;
    closedAt = 0;
    EXPECT_EQ(sys::readWholeFile(scratch / L"missing", content, &openSecurely), ENOENT);
    EXPECT_EQ(attempts, 1);
    EXPECT_EQ(sys::readWholeFile(scratch.path(), content, &openSecurely), EACCES);
    EXPECT_EQ(attempts, 2);
}

TEST(FileIo, WritesTheExactBytes)
{
    const ScratchFolder scratch;
    const std::string bytes = "a=1\nb\r\nc\x1A"
                              "d\xFF";
    EXPECT_EQ(sys::writeWholeFile(scratch / L"\u8A66 \u00E9.cfg", bytes), 0);
    EXPECT_EQ(readBytes(scratch / L"\u8A66 \u00E9.cfg"), bytes);
}

TEST(FileIo, WriteReplacesALongerFile)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", std::string(100000, 'x'));
    EXPECT_EQ(sys::writeWholeFile(scratch / L"file", "short"), 0);
    EXPECT_EQ(readBytes(scratch / L"file"), "short");
    EXPECT_EQ(sys::writeWholeFile(scratch / L"file", ""), 0);
    EXPECT_EQ(readBytes(scratch / L"file"), "");
}

TEST(FileIo, WriteEndsAtTheFirstNul)
{
    const ScratchFolder scratch;
    EXPECT_EQ(sys::writeWholeFile(scratch / L"file", std::string("a=1\0b=2\n", 8)), 0);
    EXPECT_EQ(readBytes(scratch / L"file"), "a=1");
}

TEST(FileIo, WritesWhileOthersHoldTheFileOpen)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", "old");
    const win32::FileHandle other = openFile(scratch / L"file", GENERIC_READ | GENERIC_WRITE,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_TRUE(other);
    EXPECT_EQ(sys::writeWholeFile(scratch / L"file", "new"), 0);
    EXPECT_EQ(readBytes(scratch / L"file"), "new");
}

TEST(FileIo, OthersOpenTheFileWhileItIsWritten)
{
    const ScratchFolder scratch;
    const std::wstring file = scratch / L"file";
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

TEST(FileIo, WriteThatFailsHasItsOwnCode)
{
    const ScratchFolder scratch;
    EXPECT_EQ(sys::writeWholeFile(scratch.path(), "x"), 100004);
    EXPECT_EQ(sys::writeWholeFile(scratch / L"no folder\\file", "x"), 100004);
    writeBytes(scratch / L"locked", "old");
    {
        const win32::FileHandle lock = openFile(scratch / L"locked", GENERIC_READ, FILE_SHARE_READ);
        ASSERT_TRUE(lock);
        EXPECT_EQ(sys::writeWholeFile(scratch / L"locked", "new"), 100004);
    }
    EXPECT_EQ(readBytes(scratch / L"locked"), "old");
}

TEST(FileIo, FailureToOpenIsLogged)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"locked", "x");
    const win32::FileHandle lock = openFile(scratch / L"locked", GENERIC_READ, 0);
    ASSERT_TRUE(lock);
    const testing_support::RecordedLog log;
    std::string content;
    sys::readWholeFile(scratch / L"locked", content);
    sys::writeWholeFile(scratch / L"locked", "new");
    const std::vector<Keelbase::LogRecord> records = log.records();
    ASSERT_EQ(records.size(), 2U);
    for (const Keelbase::LogRecord& record : records) {
        EXPECT_EQ(record.level, Keelbase::levelDetail);
        EXPECT_EQ(record.text.rfind("CreateFileW failed: 32 ", 0), 0U) << record.text;
    }
}

TEST(FileIo, FailureToReadIsLogged)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", "bytes");
    const testing_support::RecordedLog log;
    std::string content;
    sys::readWholeFile(scratch / L"file", content, &openForAppending);
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records().front().text.rfind("ReadFile failed: ", 0), 0U);
}

TEST(FileIo, FoldersExistToo)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"\u8A66", "");
    EXPECT_TRUE(sys::fileExists(scratch / L"\u8A66"));
    EXPECT_TRUE(sys::fileExists(scratch.path()));
    EXPECT_FALSE(sys::fileExists(scratch / L"missing"));
    EXPECT_FALSE(sys::fileExists(L""));
}
