#pragma once

// The support library's logging interface.
//
// The log: <roaming application data>\<settings name>\logs\<program>.log, UTF-8, one message a
// line, each ended by a line feed:
//   2026-11-21 01:39:46.123 1234:5678 6 MainForm ui/uninstall/src/widget:25 | text
//   local time              pid :tid  level category  source file:line      | text
// At 1 MiB the file is renamed to <program>.1.log, and so on up to .3.log; the oldest is deleted.
// A folder that is removed while the program runs is not created again. Without a folder for
// roaming application data there is no log.
// Threads: any. Only setSettingsName must be called before the first createLogger, in a static
// initialiser for example.
// Errors: logging never makes the program fail. When the log cannot be opened or written, messages
// are dropped silently.

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

// The environment variable that sets the logger's level: a decimal number, 0 for no messages at
// all. Any other value leaves the default. Read by the first createLogger.
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

// Receives finished messages. Any thread may call it.
class ILogger
{
public:
    virtual ~ILogger() = default;
    // The highest level that is written.
    virtual int level() const noexcept = 0;
    virtual void write(const LogRecord& record) noexcept = 0;
};

using LoggerHandle = std::shared_ptr<ILogger>;

// Names the folder below the user's roaming application data whose "logs" sub-folder receives
// the log files. The text is copied.
void setSettingsName(const char* name);
std::string settingsName();

// Fills `logger` with the process's logger, made on the first call. Always returns 0, and the
// logger is never null.
int createLogger(LoggerHandle& logger) noexcept;

// Replaces the process's logger; null brings the library's own back at the next createLogger. For
// programs, such as tests, that collect their messages elsewhere.
void setLogger(LoggerHandle logger);

// An output stream for one log message, which the destructor hands to the logger. A null logger
// drops it. `messageCategory` and `file` are not copied: pass literals.
class CLogMsgMultibyte : public std::ostringstream
{
public:
    CLogMsgMultibyte(LoggerHandle receiver, int messageLevel, const char* messageCategory,
                     const char* file, int line);
    ~CLogMsgMultibyte() override;
    CLogMsgMultibyte(const CLogMsgMultibyte&) = delete;
    CLogMsgMultibyte& operator=(const CLogMsgMultibyte&) = delete;

    // The stream as an lvalue, for use on a temporary.
    std::ostream& text() { return *this; }

private:
    LoggerHandle logger;
    int level;
    const char* category;
    const char* sourceFile;
    int sourceLine;
};

// What the messages of one source file have in common. The texts are not copied: pass literals.
struct LogSource
{
    const char* category;
    const char* file;
};

// True when the process's logger writes messages of this level.
bool isLogged(int level) noexcept;

// Parts of KEELBASE_LOG. The operator turns the whole stream expression into void, since it binds
// more weakly than << and more strongly than ?:.
LoggerHandle processLogger() noexcept;
struct LogVoidify
{
    void operator&(const std::ostream&) const {}
};

} // namespace Keelbase

// One message as a statement:
//
//     KEELBASE_LOG(logSource, Keelbase::levelInformation) << "text " << value;
//
// The operands are evaluated only when the level is logged. The second form sets the source line,
// for messages that are known by it.
#define KEELBASE_LOG(source, messageLevel) KEELBASE_LOG_AT(source, messageLevel, __LINE__)
#define KEELBASE_LOG_AT(source, messageLevel, sourceLine)                                          \
    !Keelbase::isLogged(messageLevel)                                                              \
        ? static_cast<void>(0)                                                                     \
        : Keelbase::LogVoidify() & Keelbase::CLogMsgMultibyte(Keelbase::processLogger(),           \
                                                              messageLevel, (source).category,     \
                                                              (source).file, sourceLine)           \
                                       .text()
