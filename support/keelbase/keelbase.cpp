#include "support/keelbase/keelbase.h"

#include "support/keelbase/file_logger.h"
#include "support/keelbase/log_level.h"
#include "support/keelbase/platform.h"

#include <mutex>
#include <new>

namespace Keelbase {

namespace {

class SilentLogger : public ILogger
{
public:
    int level() const noexcept override { return 0; }
    void write(const LogRecord&) noexcept override {}
};

struct Library
{
    std::mutex mutex; // guards what follows
    std::string settingsName;
    LoggerHandle logger;
};

// Never destroyed: static objects of the program may log from their destructors.
Library& library()
{
    static Library& instance = *new Library;
    return instance;
}

// Allocates nothing, so it is available when memory is short, and is never destroyed.
LoggerHandle silentLogger() noexcept
{
    alignas(SilentLogger) static unsigned char storage[sizeof(SilentLogger)];
    static SilentLogger& instance = *new (storage) SilentLogger;
    return LoggerHandle(LoggerHandle(), &instance);
}

LoggerHandle makeLogger(const std::string& settingsName)
{
    if (settingsName.empty())
        return silentLogger();
    const std::filesystem::path file = logFilePath(settingsName);
    if (file.empty())
        return silentLogger();
    return std::make_shared<FileLogger>(file, levelFromEnvironment());
}

} // namespace

void setSettingsName(const char* name)
{
    Library& shared = library();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    shared.settingsName = name;
}

std::string settingsName()
{
    Library& shared = library();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    return shared.settingsName;
}

int createLogger(LoggerHandle& logger) noexcept
{
    try {
        Library& shared = library();
        const std::lock_guard<std::mutex> lock(shared.mutex);
        if (!shared.logger)
            shared.logger = makeLogger(shared.settingsName);
        logger = shared.logger;
    } catch (...) {
        logger = silentLogger();
    }
    return 0;
}

LoggerHandle processLogger() noexcept
{
    LoggerHandle logger;
    createLogger(logger);
    return logger;
}

bool isLogged(int level) noexcept
{
    return processLogger()->level() >= level;
}

void setLogger(LoggerHandle logger)
{
    Library& shared = library();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    shared.logger = std::move(logger);
}

CLogMsgMultibyte::CLogMsgMultibyte(LoggerHandle receiver, int messageLevel,
                                   const char* messageCategory, const char* file, int line)
    : logger(std::move(receiver)), level(messageLevel), category(messageCategory), sourceFile(file),
      sourceLine(line)
{}

CLogMsgMultibyte::~CLogMsgMultibyte()
{
    if (!logger)
        return;
    try {
        logger->write({level, category, sourceFile, sourceLine, str()});
    } catch (...) {
        // No memory for the message: it is lost.
    }
}

} // namespace Keelbase
