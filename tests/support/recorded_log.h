#pragma once

// While it exists, receives the process's log messages instead of the file.

#include "support/keelbase/keelbase.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace testing_support {

class RecordedLog
{
public:
    explicit RecordedLog(int level = Keelbase::levelDetail) : sink(std::make_shared<Sink>(level))
    {
        Keelbase::setLogger(sink);
    }
    ~RecordedLog() { Keelbase::setLogger(nullptr); }
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;

    std::vector<Keelbase::LogRecord> records() const { return sink->copy(); }
    Keelbase::LoggerHandle handle() const { return sink; }

private:
    class Sink : public Keelbase::ILogger
    {
    public:
        explicit Sink(int highestLevel) : highest(highestLevel) {}
        int level() const noexcept override { return highest; }
        void write(const Keelbase::LogRecord& record) noexcept override
        {
            const std::lock_guard<std::mutex> lock(mutex);
            written.push_back(record);
        }
        std::vector<Keelbase::LogRecord> copy() const
        {
            const std::lock_guard<std::mutex> lock(mutex);
            return written;
        }

    private:
        const int highest;
        mutable std::mutex mutex;
        std::vector<Keelbase::LogRecord> written;
    };

    std::shared_ptr<Sink> sink;
};

} // namespace testing_support
