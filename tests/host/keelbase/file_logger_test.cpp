#include "support/keelbase/file_logger.h"
#include "tests/host/support/temp_folder.h"
#include "tests/support/lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using Keelbase::FileLogger;

namespace {

class LogFile : public testing::Test
{
protected:
    std::unique_ptr<FileLogger> logger(Keelbase::RotationLimits limits = {}, int level = 6) const
    {
        return std::make_unique<FileLogger>(folder.narrowPath("logs/Program.log"), level, limits);
    }
    static void write(FileLogger& target, const std::string& text, int level = 6)
    {
        target.write({level, "Category", "source/file", 12, text});
    }
    // The texts of a log file's messages.
    std::vector<std::string> texts(const std::string& name = "logs/Program.log") const
    {
        std::vector<std::string> found;
        for (const std::string& line : testing_support::linesOf(folder.read(name)))
            found.push_back(line.substr(line.find(" | ") + 3));
        return found;
    }

    const host::TempFolder folder;
};

} // namespace

TEST_F(LogFile, LineHasTimeProcessThreadAndMessage)
{
    write(*logger(), "-->Widget::Widget()");
    EXPECT_THAT(folder.read("logs/Program.log"),
                testing::MatchesRegex("....-..-.. ..:..:..[.]... [0-9]+:[0-9]+ 6 Category "
                                      "source/file:12 [|] -->Widget::Widget[(][)]\n"));
}

TEST_F(LogFile, MessageIsInTheFileBeforeTheLoggerEnds)
{
    const auto open = logger();
    write(*open, "first");
    EXPECT_EQ(texts(), std::vector<std::string>{"first"});
    write(*open, "second");
    EXPECT_EQ(texts(), (std::vector<std::string>{"first", "second"}));
}

TEST_F(LogFile, GrowsFromRunToRun)
{
    write(*logger(), "first");
    write(*logger(), "second");
    EXPECT_EQ(texts(), (std::vector<std::string>{"first", "second"}));
}

TEST_F(LogFile, HoldsMessagesUpToTheLevel)
{
    const auto open = logger({}, 6);
    EXPECT_EQ(open->level(), 6);
    write(*open, "error", 3);
    write(*open, "information", 6);
    write(*open, "detail", 7);
    EXPECT_EQ(texts(), (std::vector<std::string>{"error", "information"}));
}

TEST_F(LogFile, TextsAreNotFormatStrings)
{
    write(*logger(), "{} {0} %v %% {");
    EXPECT_EQ(texts(), std::vector<std::string>{"{} {0} %v %% {"});
}

TEST_F(LogFile, RotatesBySizeAndKeepsThreeOlderFiles)
{
    const auto open = logger({1000, 3});
    for (int number = 0; number < 50; ++number)
        write(*open, std::to_string(number) + std::string(200, '.'));
    std::vector<std::string> all;
    for (const char* const name : {"3.log", "2.log", "1.log", "log"}) {
        const std::string file = std::string("logs/Program.") + name;
        EXPECT_LE(folder.read(file).size(), 1000U) << file;
        const std::vector<std::string> part = texts(file);
        EXPECT_FALSE(part.empty());
        all.insert(all.end(), part.begin(), part.end());
    }
    EXPECT_FALSE(folder.holds("logs/Program.4.log"));
    // The newest messages remain, in order and without a gap.
    ASSERT_LT(all.size(), 50U);
    const int first = 50 - static_cast<int>(all.size());
    for (std::size_t index = 0; index < all.size(); ++index)
        EXPECT_EQ(std::stoi(all[index]), first + static_cast<int>(index));
}

TEST_F(LogFile, DefaultLimitsAreOneMebibyteAndThreeOlderFiles)
{
    const Keelbase::RotationLimits limits;
    EXPECT_EQ(limits.fileSize, 1048576U);
    EXPECT_EQ(limits.olderFiles, 3U);
}

TEST_F(LogFile, FolderThatIsRemovedWhileTheProgramRunsStaysRemoved)
{
    const auto open = logger();
    write(*open, "first");
    std::filesystem::remove_all(folder.narrowPath("logs"));
    for (int number = 0; number < 10; ++number)
        write(*open, "dropped");
    EXPECT_FALSE(folder.holds("logs"));
    // Once something else recreates it, logging continues.
    std::filesystem::create_directories(folder.narrowPath("logs"));
    write(*open, "second");
    EXPECT_EQ(texts(), std::vector<std::string>{"second"});
}

TEST_F(LogFile, FileThatIsRemovedWhileTheProgramRunsIsRecreated)
{
    const auto open = logger();
    write(*open, "first");
    std::filesystem::remove(folder.narrowPath("logs/Program.log"));
    write(*open, "second");
    EXPECT_EQ(texts(), std::vector<std::string>{"second"});
}

TEST_F(LogFile, FirstMessageOfALoggerCreatesTheFolders)
{
    write(*logger(), "first");
    std::filesystem::remove_all(folder.narrowPath("logs"));
    write(*logger(), "second");
    EXPECT_EQ(texts(), std::vector<std::string>{"second"});
}

TEST_F(LogFile, FolderInPlaceOfTheFileIsTolerated)
{
    std::filesystem::create_directories(folder.narrowPath("logs/Program.log"));
    const auto open = logger();
    for (int number = 0; number < 10; ++number)
        write(*open, "lost");
    EXPECT_TRUE(std::filesystem::is_empty(folder.narrowPath("logs/Program.log")));
}

TEST_F(LogFile, FileInPlaceOfTheFolderIsTolerated)
{
    folder.write("logs", "somebody's file");
    const auto open = logger();
    write(*open, "lost");
    EXPECT_EQ(folder.read("logs"), "somebody's file");
}

TEST_F(LogFile, RecoversFromAFewMessagesThatCouldNotBeWritten)
{
    folder.write("logs", "");
    const auto open = logger();
    write(*open, "lost");
    write(*open, "lost");
    folder.remove("logs");
    write(*open, "written");
    EXPECT_EQ(texts(), std::vector<std::string>{"written"});
    // Only failures in a row count.
    folder.remove("logs/Program.log");
    std::filesystem::create_directories(folder.narrowPath("logs/Program.log"));
    write(*open, "lost");
    write(*open, "lost");
    folder.remove("logs/Program.log");
    write(*open, "written");
    EXPECT_EQ(texts(), std::vector<std::string>{"written"});
}

TEST_F(LogFile, GivesUpAfterThreeMessagesForWhichTheFileDidNotOpen)
{
    folder.write("logs", "");
    const auto open = logger();
    for (int number = 0; number < 3; ++number)
        write(*open, "lost");
    folder.remove("logs");
    write(*open, "still silent");
    EXPECT_FALSE(folder.holds("logs/Program.log"));
}

TEST_F(LogFile, RotationThatFailsLosesOlderMessagesOnly)
{
    // A folder that is not empty, in the place of an older file, cannot be replaced.
    std::filesystem::create_directories(folder.narrowPath("logs/Program.1.log/occupied"));
    const auto open = logger({500, 1});
    for (int number = 0; number < 20; ++number) {
        write(*open, std::to_string(number) + std::string(100, '.'));
        const std::vector<std::string> kept = texts();
        ASSERT_FALSE(kept.empty());
        EXPECT_EQ(std::stoi(kept.back()), number);
    }
    EXPECT_LE(folder.read("logs/Program.log").size(), 500U);
}

TEST_F(LogFile, FullDiskIsTolerated)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "this machine has no /dev/full";
    std::filesystem::create_directories(folder.narrowPath("logs"));
    std::filesystem::create_symlink("/dev/full", folder.narrowPath("logs/Program.log"));
    const auto open = logger();
    for (int number = 0; number < 10; ++number)
        write(*open, "lost");
    write(*open, std::string(100000, 'x')); // more than any buffer takes
    // With free space logging continues, however many messages were lost.
    std::filesystem::remove(folder.narrowPath("logs/Program.log"));
    write(*open, "written");
    EXPECT_EQ(texts(), std::vector<std::string>{"written"});
}

TEST_F(LogFile, ThreadsWriteWholeLinesInTheirOwnOrder)
{
    const auto open = logger();
    constexpr int threadCount = 4;
    constexpr int messages = 100;
    std::vector<std::thread> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([&open, number] {
            for (int count = 0; count < messages; ++count)
                write(*open, std::to_string(number) + ":" + std::to_string(count));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    std::vector<int> next(threadCount, 0);
    for (const std::string& text : texts()) {
        const std::size_t number = static_cast<std::size_t>(std::stoi(text));
        ASSERT_LT(number, next.size());
        EXPECT_EQ(text, std::to_string(number) + ":" + std::to_string(next[number]++));
    }
    for (const int count : next)
        EXPECT_EQ(count, messages);
}
