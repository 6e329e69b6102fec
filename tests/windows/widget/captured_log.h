#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "support/keelbase/keelbase.h"

// Receives the process's log messages instead of a file while it lives.
class CapturedLog
{
public:
    CapturedLog() { Keelbase::setLogger(sink); }
    ~CapturedLog() { Keelbase::setLogger(nullptr); }
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    std::vector<Keelbase::LogRecord> records() const { return sink->copy(); }

    // The texts of the main window's category, in order.
    std::vector<std::string> mainFormTexts() const
    {
        std::vector<std::string> texts;
        for (const Keelbase::LogRecord& record : records()) {
            if (record.category == "MainForm")
                texts.push_back(record.text);
        }
        return texts;
    }

private:
    class Sink : public Keelbase::ILogger
    {
    public:
        int level() const noexcept override { return Keelbase::defaultLevel; }

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
        mutable std::mutex mutex;
        std::vector<Keelbase::LogRecord> written;
    };

    std::shared_ptr<Sink> sink = std::make_shared<Sink>();
};
