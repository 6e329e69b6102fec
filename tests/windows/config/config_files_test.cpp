#include "support/win32/unique_handle.h"
#include "tests/windows/support/scratch_folder.h"
#include "tests/windows/support/standing_clock.h"
#include "ui/common/config/config.h"

#include <gtest/gtest.h>

#include <string>

using fs::CConfig;
using windows_tests::readBytes;
using windows_tests::ScratchFolder;
using windows_tests::writeBytes;

namespace {

class ConfigFiles : public testing::Test
{
protected:
    ConfigFiles() { config.setFileName(file); }

    const ScratchFolder scratch;
    const std::wstring file = scratch / L"\u8A2D\u5B9A \u00E9.cfg";
    CConfig config;
};

} // namespace

TEST_F(ConfigFiles, SaveAndLoadUnderNonAsciiPaths)
{
    config.setValue("Language", "fr");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "Language=fr\n");
    CConfig other;
    other.setFileName(file);
    EXPECT_EQ(other.load(), 0);
    EXPECT_EQ(other.getValue("Language", ""), "fr");
}

TEST_F(ConfigFiles, MissingFileHasItsCode)
{
    config.setValue("a", "1");
    EXPECT_EQ(config.load(), 100002);
    EXPECT_EQ(config.reload(), 100002);
    EXPECT_EQ(config.getValue("a", ""), "1");
    CConfig nameless;
    EXPECT_EQ(nameless.load(), 100002);
    EXPECT_EQ(nameless.save(), 100002);
}

TEST_F(ConfigFiles, MissingFolderHasItsCode)
{
    config.setFileName(scratch / L"no folder\\file.cfg");
    EXPECT_EQ(config.load(), 100002);
    config.setValue("a", "1");
    EXPECT_EQ(config.save(), 100004);
    EXPECT_TRUE(config.isModified());
}

TEST_F(ConfigFiles, FolderInPlaceOfTheFile)
{
    std::filesystem::create_directory(file);
    config.setValue("a", "1");
    EXPECT_EQ(config.load(), 100004);
    EXPECT_EQ(config.reload(), 100004);
    EXPECT_EQ(config.save(), 100004);
    EXPECT_EQ(config.getValue("a", ""), "1");
    // The change waits for a save that succeeds.
    std::filesystem::remove(file);
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "a=1\n");
}

TEST_F(ConfigFiles, UnreadableFile)
{
    writeBytes(file, "a=1\nb=2\n");
    win32::FileHandle lock(
        CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(lock);
    config.setValue("a", "changed");
    EXPECT_EQ(config.load(), 100004);
    EXPECT_EQ(config.reload(), 100004);
    EXPECT_EQ(config.save(), 100004);
    lock.reset();
    EXPECT_EQ(readBytes(file), "a=1\nb=2\n");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "a=changed\nb=2\n");
}

// A save that treated a file in use as unreadable would write only its own key.
TEST_F(ConfigFiles, SaveKeepsTheContentOfAFileThatIsBrieflyInUse)
{
    struct Hold
    {
        const char* how;
        DWORD access;
        DWORD sharing;
    };
    for (const Hold& hold :
         {Hold{"without sharing", GENERIC_READ, 0},
          Hold{"for writing", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE}}) {
        SCOPED_TRACE(hold.how);
        writeBytes(file, "a=1\nb=2\n");
        static win32::FileHandle other;
        other.reset(CreateFileW(file.c_str(), hold.access, hold.sharing, nullptr, OPEN_EXISTING, 0,
                                nullptr));
        ASSERT_TRUE(other);
        config.setValue("c", "3");
        const windows_tests::StandingClock clock([] { other.reset(); });
        EXPECT_EQ(config.save(), 0);
        EXPECT_EQ(readBytes(file), "a=1\nb=2\nc=3\n");
    }
}

TEST_F(ConfigFiles, WriteProtectedFileKeepsItsContent)
{
    writeBytes(file, "a=1\n");
    win32::FileHandle lock(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                       OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(lock);
    EXPECT_EQ(config.load(), 0);
    config.setValue("a", "2");
    EXPECT_EQ(config.save(), 100004);
    EXPECT_TRUE(config.isModified());
    lock.reset();
    EXPECT_EQ(readBytes(file), "a=1\n");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "a=2\n");
}

TEST_F(ConfigFiles, FileOfNulsReadsAsEmptyAndIsRepaired)
{
    writeBytes(file, std::string(1 << 20, '\0'));
    EXPECT_EQ(config.load(), 0);
    EXPECT_EQ(config.getValue("a", "default"), "default");
    config.setValue("a", "1");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "a=1\n");
}

TEST_F(ConfigFiles, TrailingNulsAreCutOff)
{
    writeBytes(file, "a=1\nb=2" + std::string(4096, '\0'));
    EXPECT_EQ(config.load(), 0);
    EXPECT_EQ(config.getValue("b", ""), "2");
}

TEST_F(ConfigFiles, LastLineNeedsNoLineFeed)
{
    writeBytes(file, "a=1\nb=x=y");
    EXPECT_EQ(config.load(), 0);
    EXPECT_EQ(config.getValue("b", ""), "x=y");
}

TEST_F(ConfigFiles, CarriageReturnsAreIgnored)
{
    writeBytes(file, "a=1\r\nb=x=y\r\n");
    EXPECT_EQ(config.load(), 0);
    EXPECT_EQ(config.getValue("a", ""), "1");
    EXPECT_EQ(config.getValue("b", ""), "x=y");
    config.setValue("c", "3");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "a=1\nb=x=y\nc=3\n");
}

TEST_F(ConfigFiles, FiftyMegabytesAreReadAndWrittenBack)
{
    constexpr std::size_t size = 50U << 20;
    std::string text;
    text.reserve(size + 64);
    for (int line = 0; text.size() < size; ++line)
        text += "key" + std::to_string(1000000 + line) + "=" + std::string(200, 'v') + "\n";
    text += "last=1\n";
    writeBytes(file, text);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(config.load(), 0);
    EXPECT_TRUE(config.getBool("last", false));
    EXPECT_EQ(config.getValue("key1000000", ""), std::string(200, 'v'));
    config.setValue("zz", "new");
    EXPECT_EQ(config.save(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
    EXPECT_TRUE(readBytes(file) == text + "zz=new\n");
}

TEST_F(ConfigFiles, SaveWithoutChangesTouchesNothing)
{
    EXPECT_EQ(config.save(), 0);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ConfigFiles, SaveAfterTheFileWasDeletedWritesTheChangesOnly)
{
    writeBytes(file, "old=1\n");
    EXPECT_EQ(config.load(), 0);
    std::filesystem::remove(file);
    config.setValue("new", "2");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "new=2\n");
}

TEST_F(ConfigFiles, EmptyValueDeletesTheKeyFromTheFile)
{
    writeBytes(file, "a=1\nb=2\n");
    EXPECT_EQ(config.load(), 0);
    config.setValue("a", "");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(readBytes(file), "b=2\n");
}
