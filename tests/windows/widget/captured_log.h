#pragma once

#include "tests/support/recorded_log.h"

#include <string>
#include <vector>

// Records the log at the default level and gives the main window's messages.
class CapturedLog : public testing_support::RecordedLog
{
public:
    CapturedLog() : RecordedLog(Keelbase::defaultLevel) {}

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
};
