#include "tests/host/support/temp_folder.h"
#include "ui/common/config/config.h"
#include "ui/common/sys/result_codes.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace fs {

// Every thread saves after each of its own keys.
TEST(ConfigThreads, ConcurrentSavesLoseNoKey)
{
    constexpr int threadCount = 4;
    constexpr int keysPerThread = 50;
    const host::TempFolder folder;
    CConfig config;
    config.setFileName(folder.path(L"common.cfg"));

    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&config, thread] {
            for (int key = 0; key < keysPerThread; ++key) {
                config.setValue(std::to_string(thread) + "/" + std::to_string(key), "1");
                EXPECT_EQ(config.save(), sys::success);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    CConfig fresh;
    fresh.setFileName(folder.path(L"common.cfg"));
    ASSERT_EQ(fresh.load(), sys::success);
    for (int thread = 0; thread < threadCount; ++thread) {
        for (int key = 0; key < keysPerThread; ++key) {
            const std::string name = std::to_string(thread) + "/" + std::to_string(key);
            EXPECT_TRUE(fresh.getBool(name, false)) << name;
        }
    }
}

TEST(ConfigThreads, AllOperationsMayRunConcurrently)
{
    constexpr int rounds = 200;
    const host::TempFolder folder;
    const std::wstring path = folder.path(L"common.cfg");
    folder.write("common.cfg", "stable=1\n");
    CConfig config;
    config.setFileName(path);

    std::vector<std::thread> threads;
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round)
            config.setFileName(path);
    });
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round) {
            config.setValue("own", std::to_string(round));
            config.save();
        }
    });
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round) {
            config.load();
            config.reload();
        }
    });
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round) {
            const std::string seen = config.getValue("stable", "absent");
            EXPECT_TRUE(seen == "1" || seen == "absent") << seen;
            config.getBool("own", false);
            config.isModified();
        }
    });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(config.reload(), sys::success);
}

// A load during a change of the file name must not add the old file's values.
TEST(ConfigThreads, LoadNeverMixesTwoFiles)
{
    const host::TempFolder folder;
    const std::wstring oldPath = folder.path(L"old.cfg");
    const std::wstring newPath = folder.path(L"new.cfg");
    std::string text;
    for (int line = 0; line < 2000; ++line)
        text += "key" + std::to_string(line) + "=old\n";
    folder.write("old.cfg", text);
    folder.write("new.cfg", "key0=new\n");

    CConfig config;
    std::atomic<bool> finished{false};
    std::thread loader([&] {
        while (!finished)
            config.load();
    });
    for (int round = 0; round < 60; ++round) {
        config.setFileName(oldPath);
        config.load();
        config.setFileName(newPath);
        config.load();
        EXPECT_EQ(config.getValue("key0", ""), "new");
        EXPECT_EQ(config.getValue("key1999", "absent"), "absent");
    }
    finished = true;
    loader.join();
}

} // namespace fs
