#pragma once

// The library's own logger: a rotating file that several processes may write.

#include "support/keelbase/keelbase.h"
#include "support/keelbase/platform.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <mutex>

namespace Keelbase {

struct RotationLimits
{
    std::size_t fileSize = std::size_t{1024} * 1024; // bytes of one file
    std::size_t olderFiles = 3;                      // name.1.log to name.3.log
};

// The file is open only while a message is written: what was logged survives a crash, and the log
// folder can be removed while the program runs. Only the first message creates missing folders; a
// folder that is removed later stays removed, and messages are dropped while it is missing. After
// three messages in a row for which the file cannot be opened the logger gives up for good, since
// each attempt takes some 50 ms.
//
// Threads: any.
class FileLogger : public ILogger
{
public:
    FileLogger(std::filesystem::path logFile, int level, RotationLimits rotation = {});
    ~FileLogger() override;

    int level() const noexcept override;
    void write(const LogRecord& record) noexcept override;

private:
    bool folderWasRemoved() const;
    void append(const std::string& line);

    const std::filesystem::path file;
    const int highestLevel;
    const RotationLimits limits;
    std::mutex mutex; // guards what follows
    WriteGate gate;
    bool opened = false; // at least once
    int failedOpens = 0;
};

} // namespace Keelbase
