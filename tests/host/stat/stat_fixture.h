#pragma once

// A statistics test's surroundings: an empty common.cfg in a folder of its own, no environment
// switches, recorded log messages and recorded requests.

#include "tests/host/stat/scripted_netpull.h"
#include "tests/host/support/temp_folder.h"
#include "tests/support/recorded_log.h"
#include "ui/common/config/config.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

class StatTest : public testing::Test
{
protected:
    StatTest();
    ~StatTest() override;

    // "level category source:line text" for each message so far. Level 7 is on unless setLogLevel
    // said otherwise.
    std::vector<std::string> log() const;
    void setLogLevel(int level);

    void setEnvironment(const std::string& name, const std::string& value);

    fs::CConfig& common();
    std::filesystem::path commonFile() const { return folder.narrowPath("common.cfg"); }
    std::filesystem::path applicationFile(int applicationId) const;
    // Replaces common.cfg and reads it.
    void storeCommon(const std::string& text);
    void storeApplication(int applicationId, const std::string& text);

    static std::string contentOf(const std::filesystem::path& file);

private:
    const host::TempFolder folder;
    std::optional<testing_support::RecordedLog> recordedLog;
    std::vector<std::string> environment;
};

// What createGuid() yields for the rest of the test; without a call always the same GUID.
void setNextGuid(const std::string& guid);
// How often it was called in this test.
int createdGuids();
