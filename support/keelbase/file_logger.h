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

// The file is open only while a message is written: what was logged survives a crash, and the
// log folder can be removed while the program runs. Missing folders are made for the first message
// only: a folder that is removed later stays removed, and messages are dropped while it is missing.
// After a few messages in a row for which the file cannot be opened the logger falls silent for
// good, since each attempt takes some 50 ms.
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
