#pragma once

// A statistics test's surroundings: an empty common.cfg in a folder of its own, no environment
// switches, recorded log messages and recorded requests.

#include "support/keelbase/keelbase.h"
#include "tests/host/stat/scripted_netpull.h"
#include "ui/common/config/config.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <vector>

class RecordingLogger : public Keelbase::ILogger
{
public:
    explicit RecordingLogger(int level) : threshold(level) {}

    int level() const noexcept override { return threshold; }
    void write(const Keelbase::LogRecord& record) noexcept override;

    // "level category source:line text" for each message.
    std::vector<std::string> lines() const;

private:
    int threshold;
    mutable std::mutex mutex;
    std::vector<std::string> written;
};

class StatTest : public testing::Test
{
protected:
    StatTest();
    ~StatTest() override;

    // The messages so far. Level 7 is on unless setLogLevel said otherwise.
    std::vector<std::string> log() const { return logger->lines(); }
    void setLogLevel(int level);

    void setEnvironment(const std::string& name, const std::string& value);

    fs::CConfig& common();
    std::filesystem::path commonFile() const { return folder / "common.cfg"; }
    std::filesystem::path applicationFile(int applicationId) const;
    // Replaces common.cfg and reads it.
    void storeCommon(const std::string& text);
    void storeApplication(int applicationId, const std::string& text);

    static std::string contentOf(const std::filesystem::path& file);

    std::filesystem::path folder;

private:
    std::shared_ptr<RecordingLogger> logger;
    std::vector<std::string> environment;
};

// What createGuid() yields from now on; without a call a fresh random GUID each time.
void setNextGuid(const std::string& guid);
int createdGuids();
