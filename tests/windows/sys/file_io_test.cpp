#include "tests/support/recorded_log.h"
#include "tests/windows/support/scratch_folder.h"
#include "ui/common/sys/file_io.h"
#include "ui/common/sys/file_io_open.h"
#include "ui/common/sys/result_codes.h"
#include "support/win32/unique_handle.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

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

// A stream whose size is known and whose bytes cannot be had.
int openForAppending(std::FILE** stream, const wchar_t* path, const wchar_t*)
{
    return _wfopen_s(stream, path, L"ab");
}

std::wstring requestedMode;

int rememberMode(std::FILE** stream, const wchar_t* path, const wchar_t* mode)
{
    requestedMode = mode;
    return _wfopen_s(stream, path, mode);
}

} // namespace

TEST(FileIo, ReadsTheBytesAsTheyAre)
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

TEST(FileIo, OpenErrorsPassThroughAndLeaveTheContent)
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

TEST(FileIo, ReadsWhileOthersHoldTheFileOpenForWriting)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", "bytes");
    const win32::FileHandle other =
        openFile(scratch / L"file", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_TRUE(other);
    std::string content;
    EXPECT_EQ(sys::readWholeFile(scratch / L"file", content), 0);
    EXPECT_EQ(content, "bytes");
}

TEST(FileIo, WritesTheBytesAsTheyAre)
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

TEST(FileIo, FailureToOpenIsLoggedAsThat)
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

TEST(FileIo, FailureToReadIsLoggedAsThat)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"file", "bytes");
    const testing_support::RecordedLog log;
    std::string content;
    sys::readWholeFile(scratch / L"file", content, &openForAppending);
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records().front().text.rfind("ReadFile failed: ", 0), 0U);
}

TEST(FileIo, ExistenceCountsFoldersToo)
{
    const ScratchFolder scratch;
    writeBytes(scratch / L"\u8A66", "");
    EXPECT_TRUE(sys::fileExists(scratch / L"\u8A66"));
    EXPECT_TRUE(sys::fileExists(scratch.path()));
    EXPECT_FALSE(sys::fileExists(scratch / L"missing"));
    EXPECT_FALSE(sys::fileExists(L""));
}
