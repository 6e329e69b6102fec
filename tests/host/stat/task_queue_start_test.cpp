// A worker that cannot be started: this program's pthread_create stands before the system's.

#include "ui/common/stat/task_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <dlfcn.h>
#include <future>
#include <memory>
#include <pthread.h>
#include <system_error>

namespace {

std::atomic<bool> threadsRunOut{false};

} // namespace

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the system's are reserved
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                              void* (*routine)(void*), void* argument)
{
    if (threadsRunOut)
        return EAGAIN;
    static const auto next =
        reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
    return next(thread, attributes, routine, argument);
}

TEST(TaskQueueStart, FailureIsThrownAndTheTaskIsDroppedWithTheQueue)
{
    const auto task = std::make_shared<int>(0);
    {
        stats::TaskQueue queue;
        threadsRunOut = true;
        EXPECT_THROW(queue.post([task] { ADD_FAILURE(); }), std::system_error);
        threadsRunOut = false;
    }
    EXPECT_EQ(task.use_count(), 1);
}

TEST(TaskQueueStart, FailureOfOneQueueLeavesAnotherAlone)
{
    stats::TaskQueue failed;
    threadsRunOut = true;
    EXPECT_THROW(failed.post([] {}), std::system_error);
    threadsRunOut = false;
    std::promise<void> done;
    stats::TaskQueue queue;
    queue.post([&done] { done.set_value(); });
    EXPECT_EQ(done.get_future().wait_for(std::chrono::seconds(60)), std::future_status::ready);
}
