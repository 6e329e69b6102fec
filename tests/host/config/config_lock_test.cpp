// What other threads may do with an object while its file is read or written.

#include "ui/common/config/config.h"
#include "ui/common/sys/file_io.h"
#include "ui/common/sys/replaceable.h"
#include "ui/common/sys/result_codes.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <system_error>

namespace fs {

namespace {

using namespace std::chrono_literals;

constexpr auto deadline = 60s;

std::function<void()> duringRead;
std::function<void()> duringWrite;

// A disk with one file, "a=file", that calls the test in the middle of each access.
int read(const std::wstring&, std::string& content)
{
    if (duringRead)
        duringRead();
    content = "a=file\n";
    return sys::success;
}

int write(const std::wstring&, const std::string&)
{
    if (duringWrite)
        duringWrite();
    return sys::success;
}

bool exists(const std::wstring&)
{
    return true;
}

class ConfigLock : public testing::Test
{
protected:
    ConfigLock()
    {
        sys::setFileFunctions({&read, &write, &exists});
        config.setFileName(L"common.cfg");
    }
    ~ConfigLock() override
    {
        sys::setFileFunctions(sys::systemFiles());
        duringRead = nullptr;
        duringWrite = nullptr;
    }

    // What another thread gets for key "a".
    std::future<std::string> askedAside()
    {
        return std::async(std::launch::async, [this] { return config.getValue("a", "absent"); });
    }

    CConfig config;
};

} // namespace

TEST_F(ConfigLock, OtherThreadsReadValuesWhileTheFileIsRead)
{
    for (int (CConfig::*operation)() : {&CConfig::load, &CConfig::reload}) {
        config.setFileName(L"common.cfg");
        std::future<std::string> answer;
        std::future_status status = std::future_status::deferred;
        duringRead = [&] {
            answer = askedAside();
            status = answer.wait_for(deadline);
        };
        EXPECT_EQ((config.*operation)(), sys::success);
        ASSERT_EQ(status, std::future_status::ready);
        EXPECT_EQ(answer.get(), "absent");
        EXPECT_EQ(config.getValue("a", "absent"), "file");
    }
}

TEST_F(ConfigLock, ChangeMadeWhileTheFileIsReadSurvivesALoad)
{
    duringRead = [this] {
        std::async(std::launch::async, [this] { config.setValue("a", "changed"); }).wait();
    };
    EXPECT_EQ(config.load(), sys::success);
    EXPECT_EQ(config.getValue("a", "absent"), "changed");
}

TEST_F(ConfigLock, OtherThreadsWaitWhileASaveMerges)
{
    config.setValue("a", "own");
    std::future<std::string> duringMerge;
    std::future<std::string> duringWriting;
    duringRead = [&] {
        duringMerge = askedAside();
        EXPECT_EQ(duringMerge.wait_for(50ms), std::future_status::timeout);
    };
    duringWrite = [&] {
        duringWriting = askedAside();
        EXPECT_EQ(duringWriting.wait_for(50ms), std::future_status::timeout);
    };
    EXPECT_EQ(config.save(), sys::success);
    EXPECT_EQ(duringMerge.get(), "own");
    EXPECT_EQ(duringWriting.get(), "own");
}

TEST_F(ConfigLock, SameThreadMayUseTheObjectWhileTheFileIsRead)
{
    duringRead = [this] { config.setValue("b", "own"); };
    EXPECT_EQ(config.load(), sys::success);
    EXPECT_EQ(config.getValue("b", "absent"), "own");
}

TEST_F(ConfigLock, UseByTheSameThreadInTheMiddleOfASaveIsAnErrorAndNoDeadlock)
{
    const std::function<void()> uses[] = {
        [this] { config.getValue("a", ""); },
        [this] { config.has("a"); },
        [this] { config.getBool("a", false); },
        [this] { config.isModified(); },
        [this] { config.setValue("a", "late"); },
        [this] { config.setFileName(L"other.cfg"); },
        [this] { config.save(); },
        [this] { config.load(); },
        [this] { config.reload(); },
    };
    for (std::function<void()>* moment : {&duringRead, &duringWrite}) {
        for (const std::function<void()>& use : uses) {
            config.setValue("a", "own");
            *moment = use;
            try {
                config.save();
                ADD_FAILURE() << "it was not an error";
            } catch (const std::system_error& error) {
                EXPECT_EQ(error.code(), std::errc::resource_deadlock_would_occur);
            }
            *moment = nullptr;
        }
    }
}

} // namespace fs
