#include "support/keelbase/keelbase.h"
#include "tests/support/recorded_log.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

using Keelbase::CLogMsgMultibyte;
using testing_support::RecordedLog;

namespace {

constexpr Keelbase::LogSource source{"c", "s"};

} // namespace

TEST(Logger, CreateLoggerSucceedsWithoutALogFolder)
{
    for (const char* const name : {"", "SomeSuite"}) {
        SCOPED_TRACE(name);
        Keelbase::setSettingsName(name);
        Keelbase::setLogger(nullptr);
        Keelbase::LoggerHandle logger;
        EXPECT_EQ(Keelbase::createLogger(logger), 0);
        ASSERT_NE(logger, nullptr);
        EXPECT_EQ(logger->level(), 0);
        logger->write({6, "category", "source", 1, "goes nowhere"});
    }
    Keelbase::setSettingsName("");
}

TEST(Logger, CreateLoggerReturnsTheLoggerOfTheProcess)
{
    const RecordedLog log;
    Keelbase::LoggerHandle first;
    Keelbase::LoggerHandle second;
    EXPECT_EQ(Keelbase::createLogger(first), 0);
    EXPECT_EQ(Keelbase::createLogger(second), 0);
    EXPECT_EQ(first, log.handle());
    EXPECT_EQ(second, log.handle());
}

TEST(Logger, MessageIsWrittenWhenItsStreamEnds)
{
    const RecordedLog log;
    {
        CLogMsgMultibyte message(log.handle(), 6, "MainForm", "ui/uninstall/src/widget", 77);
        message << "count = " << 3 << ", " << std::string("text");
        EXPECT_TRUE(log.records().empty());
    }
    ASSERT_EQ(log.records().size(), 1U);
    const Keelbase::LogRecord record = log.records()[0];
    EXPECT_EQ(record.level, 6);
    EXPECT_EQ(record.category, "MainForm");
    EXPECT_EQ(record.sourceFile, "ui/uninstall/src/widget");
    EXPECT_EQ(record.sourceLine, 77);
    EXPECT_EQ(record.text, "count = 3, text");
}

TEST(Logger, MessageIsAnOutputStringStream)
{
    static_assert(std::is_base_of_v<std::ostringstream, CLogMsgMultibyte>);
    const RecordedLog log;
    CLogMsgMultibyte message(log.handle(), 6, "c", "s", 1);
    message << "text";
    EXPECT_EQ(message.str(), "text");
}

TEST(Logger, MessageWithoutALoggerIsDropped)
{
    CLogMsgMultibyte message(nullptr, 6, "c", "s", 1);
    message << "text";
}

TEST(Logger, LogComposesOnlyMessagesUpToTheLevel)
{
    for (const int level : {0, 3, 6, 7}) {
        const RecordedLog log(level);
        for (const int messageLevel : {3, 6, 7}) {
            bool composed = false;
            const auto text = [&] {
                composed = true;
                return "message";
            };
            KEELBASE_LOG(source, messageLevel) << text();
            EXPECT_EQ(composed, messageLevel <= level) << messageLevel << " at " << level;
        }
        const std::size_t expected = level == 7 ? 3U : level == 6 ? 2U : level == 3 ? 1U : 0U;
        EXPECT_EQ(log.records().size(), expected);
    }
}

TEST(Logger, SettingsNameIsCopied)
{
    std::string name = "SomeName";
    Keelbase::setSettingsName(name.c_str());
    name = "Other";
    EXPECT_EQ(Keelbase::settingsName(), "SomeName");
    Keelbase::setSettingsName("");
}

TEST(Logger, ManyThreadsMayLogAtOnce)
{
    const RecordedLog log;
    std::vector<std::thread> threads;
    for (int number = 0; number < 8; ++number) {
        threads.emplace_back([] {
            for (int count = 0; count < 200; ++count)
                KEELBASE_LOG_AT(source, 6, count) << "message";
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(log.records().size(), 1600U);
}
