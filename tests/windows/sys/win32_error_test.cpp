#include "tests/support/recorded_log.h"
#include "ui/common/sys/text_convert.h"
#include "ui/common/sys/win32_error.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include <windows.h>

TEST(Win32Error, LogsApiNumberAndSystemTextWithTheCallersSource)
{
    const testing_support::RecordedLog log;
    win32::logFailure({"IPC", "ui/common/sys/somewhere"}, 42, "CreateFileW", ERROR_FILE_NOT_FOUND);
    ASSERT_EQ(log.records().size(), 1U);
    const Keelbase::LogRecord record = log.records()[0];
    EXPECT_EQ(record.level, 7);
    EXPECT_EQ(record.category, "IPC");
    EXPECT_EQ(record.sourceFile, "ui/common/sys/somewhere");
    EXPECT_EQ(record.sourceLine, 42);

    wchar_t text[512] = {};
    const DWORD size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, ERROR_FILE_NOT_FOUND, 0, text, 512, nullptr);
    const std::wstring_view line(text, size);
    const std::wstring_view trimmed = line.substr(0, line.find_last_not_of(L"\r\n ") + 1);
    ASSERT_FALSE(trimmed.empty());
    EXPECT_EQ(record.text, "CreateFileW failed: 2 (" + sys::toUtf8(trimmed) + ")");
}

TEST(Win32Error, NumberWithoutSystemTextIsLogged)
{
    const testing_support::RecordedLog log;
    win32::logFailure({"IPC", "source"}, 1, "Api", 0x2FFFFFFF);
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records()[0].text, "Api failed: 805306367 (no text for this number)");
}

TEST(Win32Error, IsSilentBelowDetailLevel)
{
    const testing_support::RecordedLog log(Keelbase::levelInformation);
    win32::logFailure({"IPC", "source"}, 1, "Api", ERROR_FILE_NOT_FOUND);
    EXPECT_TRUE(log.records().empty());
}

TEST(Win32Error, KeepsTheErrorNumberForTheCaller)
{
    const testing_support::RecordedLog log;
    SetLastError(ERROR_SUCCESS);
    win32::logFailure({"IPC", "source"}, 1, "Api", ERROR_PIPE_BUSY);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_PIPE_BUSY));
}
