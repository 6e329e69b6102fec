#include "support/keelbase/file_logger.h"

#include "support/keelbase/log_line.h"

#include <spdlog/details/os.h>
#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <utility>

namespace Keelbase {

namespace {

constexpr int failedOpensTolerated = 3;

// Holds the gate for a scope.
class GateLock
{
public:
    explicit GateLock(WriteGate& writeGate) : gate(writeGate) { gate.enter(); }
    ~GateLock() { gate.leave(); }
    GateLock(const GateLock&) = delete;
    GateLock& operator=(const GateLock&) = delete;

private:
    WriteGate& gate;
};

} // namespace

FileLogger::FileLogger(std::filesystem::path logFile, int level, RotationLimits rotation)
    : file(std::move(logFile)), highestLevel(level), limits(rotation), gate(file)
{}

FileLogger::~FileLogger() = default;

int FileLogger::level() const noexcept
{
    return highestLevel;
}

void FileLogger::write(const LogRecord& record) noexcept
{
    if (record.level > highestLevel)
        return;
    try {
        const std::string line = composeLine(record);
        const std::lock_guard<std::mutex> lock(mutex);
        if (failedOpens < failedOpensTolerated && !folderWasRemoved())
            append(line);
    } catch (...) {
        // The message is lost; the program goes on.
    }
}

// Folders that somebody removed, such as an uninstaller that deletes the user's history, must not
// come back.
bool FileLogger::folderWasRemoved() const
{
    return opened && !spdlog::details::os::path_exists(file.parent_path().native());
}

void FileLogger::append(const std::string& line)
{
    const GateLock lock(gate);
    // The library makes missing folders too, but none below a network path.
    if (!opened)
        makeFolders(file.parent_path());
    const spdlog::details::log_msg message({}, spdlog::level::off, line);
    // A rotation fails while another program has an older file open, but it empties the current
    // file, so the second attempt finds room there.
    for (int attempt = 0; attempt < 2; ++attempt) {
        ++failedOpens;
        spdlog::sinks::rotating_file_sink_st sink(file.native(), limits.fileSize,
                                                  limits.olderFiles);
        failedOpens = 0;
        opened = true;
        sink.set_formatter(std::make_unique<spdlog::pattern_formatter>(
            "%Y-%m-%d %H:%M:%S.%e %P:%t %v", spdlog::pattern_time_type::local, "\n"));
        try {
            sink.log(message);
            return;
        } catch (const spdlog::spdlog_ex&) {
            // Tried once more.
        }
    }
}

} // namespace Keelbase
