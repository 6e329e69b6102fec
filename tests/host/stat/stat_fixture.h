#pragma once

// The environment of statistics tests: an empty common.cfg in a temporary folder, no environment
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

    // "level category source:line text" for each message so far, at level 7 unless setLogLevel
    // changed it.
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

// Sets what createGuid() returns for the rest of the test; by default it is a fixed GUID.
void setNextGuid(const std::string& guid);
// The number of calls of createGuid() in this test.
int createdGuids();
