#include "support/keelbase/file_logger.h"
#include "support/keelbase/keelbase.h"
#include "support/keelbase/platform.h"
#include "support/win32/unique_handle.h"
#include "tests/support/import_slot.h"
#include "tests/support/lines.h"
#include "tests/windows/support/child_process.h"
#include "tests/windows/support/scoped_variable.h"
#include "tests/windows/support/scratch_folder.h"
#include "tests/windows/support/unique_name.h"
#include "ui/common/sys/known_folders.h"

#include <gtest/gtest.h>

#include <cstring>
#include <cwchar>
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

using testing_support::linesOf;
using windows_tests::ChildProcess;
using windows_tests::readBytes;
using windows_tests::ScopedVariable;

namespace {

// A unique settings name, and its folder in the roaming application data.
class LogFile : public testing::Test
{
protected:
    LogFile()
    {
        std::wstring roaming;
        sys::knownFolderPath(sys::KnownFolder::roamingAppData, roaming);
        folder = std::filesystem::path(roaming) / name;
    }
    ~LogFile() override { std::filesystem::remove_all(folder); }

    ChildProcess writer(const std::wstring& letter, int count, int size = 0,
                        const std::wstring& end = L"return", const std::wstring& start = L"-") const
    {
        return ChildProcess(
            windows_tests::siblingProgram(L"log_writer"),
            {name, letter, std::to_wstring(count), std::to_wstring(size), end, start});
    }
    std::filesystem::path file() const { return folder / L"logs" / L"log_writer.log"; }
    std::filesystem::path olderFile(int number) const
    {
        return folder / L"logs" / (L"log_writer." + std::to_wstring(number) + L".log");
    }
    // Level and text of each message, without filling.
    std::vector<std::string> messages() const
    {
        const std::regex shape("[0-9-]{10} [0-9:.]{12} [0-9]+:[0-9]+ ([0-9]) Writer "
                               "tests/log_writer:1 \\| ([a-z][0-9]+)");
        std::vector<std::string> found;
        for (const std::string& line : linesOf(readBytes(file()))) {
            const std::string start = line.substr(0, line.find(" .."));
            std::smatch parts;
            EXPECT_TRUE(std::regex_match(start, parts, shape)) << start;
            found.push_back(parts[1].str() + " " + parts[2].str());
        }
        return found;
    }

    const std::wstring name = windows_tests::uniqueName(L"KeelbaseTest");
    std::filesystem::path folder;
};

// Lets processes begin at the same time.
struct StartSignal
{
    void give() const { SetEvent(event.get()); }

    const std::wstring name = windows_tests::uniqueName(L"start");
    const win32::KernelHandle event{CreateEventW(nullptr, TRUE, FALSE, name.c_str())};
};

// Each process's messages are complete and in order.
void expectInOrder(const std::vector<std::string>& lines, int messagesEach, std::size_t size)
{
    std::map<char, int> next{{'a', 0}, {'b', 0}};
    for (const std::string& line : lines) {
        const std::size_t bar = line.find(" | ");
        ASSERT_NE(bar, std::string::npos) << line;
        const std::string text = line.substr(bar + 3);
        ASSERT_EQ(text.size(), size) << line;
        const auto writer = next.find(text[0]);
        ASSERT_NE(writer, next.end()) << line;
        ASSERT_EQ(std::stoi(text.substr(1)), writer->second++) << line;
    }
    EXPECT_EQ(next['a'], messagesEach);
    EXPECT_EQ(next['b'], messagesEach);
}

// What the system answers when it is asked for the user's folder.
HRESULT folderResult = S_OK;
const wchar_t* folderText = nullptr;

HRESULT WINAPI answerFolder(REFKNOWNFOLDERID, DWORD, HANDLE, PWSTR* path)
{
    *path = nullptr;
    if (folderText != nullptr) {
        const std::size_t size = (std::wcslen(folderText) + 1) * sizeof(wchar_t);
        *path = static_cast<PWSTR>(CoTaskMemAlloc(size));
        std::memcpy(*path, folderText, size);
    }
    return folderResult;
}

HRESULT WINAPI failForWantOfMemory(REFKNOWNFOLDERID, DWORD, HANDLE, PWSTR*)
{
    throw std::bad_alloc();
}

std::filesystem::path filePathFor(HRESULT result, const wchar_t* text)
{
    folderResult = result;
    folderText = text;
    return Keelbase::logFilePath("Settings");
}

} // namespace

TEST_F(LogFile, IsInTheRoamingLogFolderNamedLikeTheProgram)
{
    ASSERT_FALSE(std::filesystem::exists(folder));
    const ChildProcess process = writer(L"a", 1);
    ASSERT_EQ(process.waitForExit(), 0U);
    const std::string line = readBytes(file());
    const std::regex shape("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3} "
                           "([0-9]+):([0-9]+) 3 Writer tests/log_writer:1 \\| a0\n");
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(line, parts, shape)) << line;
    EXPECT_EQ(parts[1].str(), std::to_string(process.pid()));
    EXPECT_NE(parts[2].str(), parts[1].str());
}

TEST(LogFilePath, IsEmptyWhenTheSystemHasNoRoamingFolder)
{
    const ReplacedImport answered("SHGetKnownFolderPath", &answerFolder);
    ASSERT_NE(answered.original(), nullptr);
    EXPECT_EQ(filePathFor(S_OK, L"D:\\Roaming"),
              L"D:\\Roaming\\Settings\\logs\\windows_keelbase.log");
    EXPECT_EQ(filePathFor(E_FAIL, L"D:\\Roaming"), L"");
    EXPECT_EQ(filePathFor(E_FAIL, nullptr), L"");
    EXPECT_EQ(filePathFor(S_OK, nullptr), L"");
}

TEST(LogFilePath, ThatThereIsNoMemoryForLeavesTheProgramWithoutALog)
{
    const std::string before = Keelbase::settingsName();
    const ReplacedImport failing("SHGetKnownFolderPath", &failForWantOfMemory);
    ASSERT_NE(failing.original(), nullptr);
    Keelbase::setSettingsName("Settings");
    Keelbase::setLogger(nullptr);
    Keelbase::LoggerHandle logger;
    EXPECT_EQ(Keelbase::createLogger(logger), 0);
    ASSERT_TRUE(logger);
    EXPECT_EQ(logger->level(), 0);
    Keelbase::setSettingsName(before.c_str());
}

TEST_F(LogFile, FoldersAreMadeBelowAPathWhoseFirstPartsAreNone)
{
    // As below a network path, spdlog gives up at the first part.
    Keelbase::FileLogger logger(L"\\\\?\\" + file().native(), Keelbase::levelInformation);
    logger.write({Keelbase::levelError, "Writer", "tests/log_writer", 1, "a0"});
    EXPECT_EQ(messages(), std::vector<std::string>{"3 a0"});
}

TEST_F(LogFile, LevelIsSixWithoutTheVariable)
{
    ASSERT_EQ(writer(L"a", 6).waitForExit(), 0U);
    EXPECT_EQ(messages(), (std::vector<std::string>{"3 a0", "6 a1", "3 a3", "6 a4"}));
}

TEST_F(LogFile, VariableRaisesTheLevel)
{
    const ScopedVariable variable(L"KEELBASE_LOG_LEVEL", L"7");
    ASSERT_EQ(writer(L"a", 3).waitForExit(), 0U);
    EXPECT_EQ(messages(), (std::vector<std::string>{"3 a0", "6 a1", "7 a2"}));
}

TEST_F(LogFile, VariableLowersTheLevel)
{
    {
        const ScopedVariable variable(L"KEELBASE_LOG_LEVEL", L"3");
        ASSERT_EQ(writer(L"a", 6).waitForExit(), 0U);
        EXPECT_EQ(messages(), (std::vector<std::string>{"3 a0", "3 a3"}));
    }
    std::filesystem::remove_all(folder);
    const ScopedVariable variable(L"KEELBASE_LOG_LEVEL", L"0");
    ASSERT_EQ(writer(L"a", 6).waitForExit(), 0U);
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(LogFile, AnythingElseInTheVariableLeavesTheDefault)
{
    for (const wchar_t* const value : {L"seven", L"7x", L" 7", L"-1", L"7.0", L"99999999999"}) {
        const ScopedVariable variable(L"KEELBASE_LOG_LEVEL", value);
        ASSERT_EQ(writer(L"a", 3).waitForExit(), 0U);
        EXPECT_EQ(messages(), (std::vector<std::string>{"3 a0", "6 a1"}));
        std::filesystem::remove_all(folder);
    }
}

TEST_F(LogFile, CrashLosesNothing)
{
    const ScopedVariable variable(L"KEELBASE_LOG_LEVEL", L"7");
    ASSERT_EQ(writer(L"a", 100, 0, L"crash").waitForExit(), 9U);
    const std::vector<std::string> written = messages();
    ASSERT_EQ(written.size(), 100U);
    EXPECT_EQ(written.back(), "3 a99");
}

TEST_F(LogFile, TwoProcessesShareOneFile)
{
    const ScopedVariable variable(L"KEELBASE_LOG_LEVEL", L"7");
    const StartSignal start;
    const ChildProcess first = writer(L"a", 400, 100, L"return", start.name);
    const ChildProcess second = writer(L"b", 400, 100, L"return", start.name);
    start.give();
    ASSERT_EQ(first.waitForExit(), 0U);
    ASSERT_EQ(second.waitForExit(), 0U);
    expectInOrder(linesOf(readBytes(file())), 400, 100);
}

TEST_F(LogFile, TwoProcessesRotateOneFile)
{
    const ScopedVariable variable(L"KEELBASE_LOG_LEVEL", L"7");
    constexpr std::size_t size = 10000;
    constexpr int messagesEach = 150; // 3 MB in total: three files, none of them deleted
    const StartSignal start;
    const ChildProcess first = writer(L"a", messagesEach, size, L"return", start.name);
    const ChildProcess second = writer(L"b", messagesEach, size, L"return", start.name);
    start.give();
    ASSERT_EQ(first.waitForExit(), 0U);
    ASSERT_EQ(second.waitForExit(), 0U);

    EXPECT_FALSE(std::filesystem::exists(olderFile(3)));
    std::string all;
    for (const std::filesystem::path& part : {olderFile(2), olderFile(1), file()}) {
        EXPECT_LE(std::filesystem::file_size(part), 1048576U) << part;
        all += readBytes(part);
    }
    EXPECT_LE(std::filesystem::file_size(olderFile(1)), 1048576U);
    EXPECT_GT(std::filesystem::file_size(olderFile(1)), 1048576U - 2 * size);
    expectInOrder(linesOf(all), messagesEach, size);
}

TEST_F(LogFile, ThreeOlderFilesAreKept)
{
    ASSERT_EQ(writer(L"a", 90, 100000).waitForExit(), 0U); // 6 MB at the levels up to 6
    for (int number = 1; number <= 3; ++number)
        EXPECT_TRUE(std::filesystem::exists(olderFile(number))) << number;
    EXPECT_FALSE(std::filesystem::exists(olderFile(4)));
    EXPECT_EQ(messages().back(), "6 a88");
}

TEST_F(LogFile, ProgramRunsWithoutALogFolder)
{
    std::filesystem::create_directories(folder);
    windows_tests::writeBytes(folder / L"logs", "somebody's file");
    EXPECT_EQ(writer(L"a", 100).waitForExit(), 0U);
    EXPECT_EQ(readBytes(folder / L"logs"), "somebody's file");
}

TEST_F(LogFile, ProgramRunsWithAFolderInPlaceOfTheFile)
{
    std::filesystem::create_directories(file());
    EXPECT_EQ(writer(L"a", 100).waitForExit(), 0U);
    EXPECT_TRUE(std::filesystem::is_empty(file()));
}

TEST_F(LogFile, ProgramRunsWhenTheFileIsLockedByAnother)
{
    std::filesystem::create_directories(file().parent_path());
    windows_tests::writeBytes(file(), "");
    {
        const win32::FileHandle lock(
            CreateFileW(file().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(lock);
        EXPECT_EQ(writer(L"a", 100).waitForExit(), 0U);
    }
    EXPECT_EQ(readBytes(file()), "");
}

TEST_F(LogFile, LoggingContinuesWhileAnOlderFileIsOpenElsewhere)
{
    std::filesystem::create_directories(file().parent_path());
    windows_tests::writeBytes(olderFile(1), "");
    // Opened so that others can neither move nor delete it.
    const win32::FileHandle viewer(CreateFileW(olderFile(1).c_str(), GENERIC_READ,
                                               FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                               OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(viewer);
    ASSERT_EQ(writer(L"a", 45, 100000).waitForExit(), 0U); // 3 MB at the levels up to 6
    EXPECT_LE(std::filesystem::file_size(file()), 1048576U);
    EXPECT_EQ(messages().back(), "6 a43");
}
