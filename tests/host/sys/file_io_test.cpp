#include "tests/host/support/temp_folder.h"
#include "ui/common/sys/file_io.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

namespace {

class FileIo : public testing::Test
{
protected:
    const host::TempFolder folder;
    std::string content = "before";
};

} // namespace

TEST_F(FileIo, ReadsTheExactBytes)
{
    const std::string bytes("a=1\r\nb\0c\xFF\n\n", 11);
    folder.write("\xE8\xA9\xA6.cfg", bytes);
    EXPECT_EQ(sys::readWholeFile(folder.path(L"\u8A66.cfg"), content), 0);
    EXPECT_EQ(content, bytes);
}

TEST_F(FileIo, FailedReadKeepsTheContent)
{
    EXPECT_EQ(sys::readWholeFile(folder.path(L"missing"), content), ENOENT);
    // A folder can be opened but not read.
    EXPECT_EQ(sys::readWholeFile(folder.path(L""), content), 100004);
    EXPECT_EQ(content, "before");
}

TEST_F(FileIo, WriteReplacesTheFileByTheTextUpToItsFirstNul)
{
    folder.write("file", std::string(100000, 'x'));
    EXPECT_EQ(sys::writeWholeFile(folder.path(L"file"), std::string("a=1\r\n\xFF\0b", 8)), 0);
    EXPECT_EQ(folder.read("file"), "a=1\r\n\xFF");
    EXPECT_EQ(sys::writeWholeFile(folder.path(L"file"), ""), 0);
    EXPECT_EQ(folder.read("file"), "");
}

TEST_F(FileIo, FailedWriteHasItsOwnCode)
{
    EXPECT_EQ(sys::writeWholeFile(folder.path(L""), "x"), 100004);
    EXPECT_EQ(sys::writeWholeFile(folder.path(L"no folder/file"), "x"), 100004);
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "this machine has no /dev/full";
    EXPECT_EQ(sys::writeWholeFile(L"/dev/full", "x"), 100004);
    EXPECT_EQ(sys::writeWholeFile(L"/dev/full", std::string(1000000, 'x')), 100004);
}

TEST_F(FileIo, FilesAndFoldersExist)
{
    folder.write("\xE8\xA9\xA6", "");
    EXPECT_TRUE(sys::fileExists(folder.path(L"\u8A66")));
    EXPECT_TRUE(sys::fileExists(folder.path(L"")));
    EXPECT_FALSE(sys::fileExists(folder.path(L"missing")));
    EXPECT_FALSE(sys::fileExists(L""));
}
