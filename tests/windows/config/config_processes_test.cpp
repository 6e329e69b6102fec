// Several processes with one settings file, which is not locked between them:
// - saves that do not overlap lose nothing, even if a process read the file long ago;
// - overlapping saves may lose pairs (the last one wins), and Windows may refuse one of them the
// file
//   while another reads it. But a refused save succeeds later, every line in the file was written
//   by one of them, and the next save works.

#include "tests/support/lines.h"
#include "tests/windows/config/turns.h"
#include "tests/windows/support/child_process.h"
#include "tests/windows/support/scratch_folder.h"
#include "tests/windows/support/unique_name.h"
#include "ui/common/config/config.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <regex>
#include <string>

using windows_tests::ChildProcess;
using windows_tests::ScratchFolder;
using windows_tests::siblingProgram;

namespace {

std::string keyOf(char prefix, int number)
{
    char text[16] = {};
    std::snprintf(text, sizeof(text), "%c%04d", prefix, number);
    return text;
}

} // namespace

TEST(ConfigProcesses, SavesInTurnLoseNoKey)
{
    constexpr int rounds = 300;
    const ScratchFolder scratch;
    const std::wstring file = scratch / L"\u8A2D\u5B9A.cfg";
    windows_tests::writeBytes(file, "kept=from before\n");
    const std::wstring name = windows_tests::uniqueName(L"turns");
    const windows_tests::Turns turns(name, true);
    const ChildProcess writer(siblingProgram(L"config_writer"),
                              {file, L"b", std::to_wstring(rounds), name, L"-"});
    // Neither process rereads the file: only save() merges the other's keys.
    fs::CConfig config;
    config.setFileName(file);
    ASSERT_EQ(config.load(), 0);
    for (int round = 0; round < rounds; ++round) {
        ASSERT_TRUE(turns.wait()) << round;
        config.setValue(keyOf('a', round), keyOf('a', round));
        ASSERT_EQ(config.save(), 0) << round;
        turns.endTurn();
    }
    ASSERT_EQ(writer.waitForExit(), 0U);

    std::string expected;
    for (const char prefix : {'a', 'b'}) {
        for (int round = 0; round < rounds; ++round)
            expected += keyOf(prefix, round) + "=" + keyOf(prefix, round) + "\n";
    }
    expected += "kept=from before\n";
    EXPECT_EQ(windows_tests::readBytes(file), expected);
}

TEST(ConfigProcesses, LastToSaveWinsForTheSameKey)
{
    const ScratchFolder scratch;
    const std::wstring file = scratch / L"file.cfg";
    fs::CConfig config;
    config.setFileName(file);
    config.setValue("b0000", "parent");
    const ChildProcess writer(siblingProgram(L"config_writer"), {file, L"b", L"1", L"-", L"-"});
    ASSERT_EQ(writer.waitForExit(), 0U);
    EXPECT_EQ(windows_tests::readBytes(file), "b0000=b0000\n");
    EXPECT_EQ(config.save(), 0);
    EXPECT_EQ(windows_tests::readBytes(file), "b0000=parent\n");
}

TEST(ConfigProcesses, OverlappingSavesSucceedEventuallyAndWriteOnlyWholeLines)
{
    // All lines have the same size and the file stays below a page, so that even a mixture of two
    // writes consists of complete lines.
    constexpr int rounds = 120;
    const ScratchFolder scratch;
    const std::wstring file = scratch / L"file.cfg";
    const std::wstring start = windows_tests::uniqueName(L"start");
    const win32::KernelHandle startEvent(CreateEventW(nullptr, TRUE, FALSE, start.c_str()));
    const std::wstring count = std::to_wstring(rounds);
    const ChildProcess first(siblingProgram(L"config_writer"), {file, L"a", count, L"-", start},
                             {true});
    const ChildProcess second(siblingProgram(L"config_writer"), {file, L"b", count, L"-", start},
                              {true});
    SetEvent(startEvent.get());
    EXPECT_EQ(first.waitForExit(), 0U);
    EXPECT_EQ(second.waitForExit(), 0U);

    const std::regex whole("([ab][0-9]{4})=\\1");
    const std::vector<std::string> lines = testing_support::linesOf(windows_tests::readBytes(file));
    EXPECT_FALSE(lines.empty());
    for (const std::string& line : lines)
        EXPECT_TRUE(std::regex_match(line, whole)) << line;

    fs::CConfig config;
    config.setFileName(file);
    ASSERT_EQ(config.load(), 0);
    config.setValue("a9999", "a9999");
    ASSERT_EQ(config.save(), 0);
    fs::CConfig after;
    after.setFileName(file);
    ASSERT_EQ(after.load(), 0);
    EXPECT_EQ(after.getValue("a9999", ""), "a9999");
    for (const std::string& line : lines)
        EXPECT_EQ(after.getValue(line.substr(0, 5), ""), line.substr(6));
}
