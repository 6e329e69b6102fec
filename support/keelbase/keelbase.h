#pragma once

// Keelbase: the support library's logging surface, as the suite's applications use it.
//
// The log: <roaming application data>\<settings name>\logs\<program>.log, UTF-8, one message a
// line, each ended by a line feed:
//   2026-11-21 01:39:46.123 1234:5678 6 MainForm ui/uninstall/src/widget:77 | text
//   local time              pid :tid  level category  source file:line      | text
// At 1 MiB the file is moved to <program>.1.log and so on up to .3.log; the oldest goes.
// Missing folders are made for a program's first message only. Where the system does not tell the
// folder of the roaming application data, there is no log.
// Threads: everything here may be called from any thread, except setSettingsName, which belongs
// into a static initialiser, before the first createLogger.
// Failures: logging never makes the program fail. A log that cannot be opened or written is
// given up silently; createLogger still succeeds and messages go nowhere.

#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>

namespace Keelbase {

// Levels in use. A message is written when the logger's level is at least the message's.
constexpr int levelError = 3;
constexpr int levelInformation = 6;
constexpr int levelDetail = 7;
constexpr int defaultLevel = levelInformation;

// Support staff raise or lower the level with this environment variable (a decimal number, 0
// writes nothing). Anything else in it leaves the default. Read by the first createLogger.
constexpr const char* levelVariable = "KEELBASE_LOG_LEVEL";

// One finished message, as handed to a logger.
struct LogRecord
{
    int level = 0;
    std::string category;
    std::string sourceFile;
    int sourceLine = 0;
    std::string text;
};

class ILogger
{
public:
    virtual ~ILogger() = default;
    virtual int level() const noexcept = 0;
    virtual void write(const LogRecord& record) noexcept = 0;
};

using LoggerHandle = std::shared_ptr<ILogger>;

// Names the folder below the user's roaming application data whose "logs" sub-folder receives
// the log files. The text is copied.
void setSettingsName(const char* name);
std::string settingsName();

// Fills `logger` with the process's logger, made on the first call; returns 0 on success, and
// there is no failure: the logger is never null.
int createLogger(LoggerHandle& logger) noexcept;

// Replaces the process's logger (null: back to the library's own at the next createLogger).
// For programs that collect their messages elsewhere, tests among them.
void setLogger(LoggerHandle logger);

// An output stream that is one log message: text is inserted, and the finished message goes to
// the logger when the stream object ends. The three texts are kept by pointer: literals.
class CLogMsgMultibyte : public std::ostringstream
{
public:
    CLogMsgMultibyte(LoggerHandle receiver, int messageLevel, const char* messageCategory,
                     const char* file, int line);
    ~CLogMsgMultibyte() override;
    CLogMsgMultibyte(const CLogMsgMultibyte&) = delete;
    CLogMsgMultibyte& operator=(const CLogMsgMultibyte&) = delete;

    std::ostream& text() { return *this; }

private:
    LoggerHandle logger;
    int level;
    const char* category;
    const char* sourceFile;
    int sourceLine;
};

// Where the messages of one source file come from: a constant at the file's top. Both texts are
// kept by pointer: literals.
struct LogSource
{
    const char* category;
    const char* file;
};

// Whether the process's logger writes messages of this level.
bool isLogged(int level) noexcept;

// The parts of KEELBASE_LOG.
LoggerHandle processLogger() noexcept;
struct LogStatement
{
    void operator&(const std::ostream&) const {}
};

} // namespace Keelbase

// One message as a statement:
//
//     KEELBASE_LOG(logSource, Keelbase::levelInformation) << "text " << value;
//
// What stands behind the macro is evaluated only when the level is logged. The second form names
// the line of the source, for messages that are known by it.
#define KEELBASE_LOG(source, messageLevel) KEELBASE_LOG_AT(source, messageLevel, __LINE__)
#define KEELBASE_LOG_AT(source, messageLevel, sourceLine)                                          \
    !Keelbase::isLogged(messageLevel)                                                              \
        ? static_cast<void>(0)                                                                     \
        : Keelbase::LogStatement() & Keelbase::CLogMsgMultibyte(Keelbase::processLogger(),         \
                                                                messageLevel, (source).category,   \
                                                                (source).file, sourceLine)         \
                                         .text()
