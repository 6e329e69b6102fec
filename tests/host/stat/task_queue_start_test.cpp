// A worker that cannot be started.

#include "tests/host/stat/thread_calls.h"
#include "ui/common/stat/task_queue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>
#include <system_error>

namespace {

// Posts while no thread can be started.
void postInVain(stats::TaskQueue& queue, const std::shared_ptr<int>& task)
{
    thread_calls::threadsRunOut = true;
    EXPECT_THROW(queue.post([task] { ADD_FAILURE() << "this task was refused"; }),
                 std::system_error);
    thread_calls::threadsRunOut = false;
}

void expectTaskRuns(stats::TaskQueue& queue)
{
    std::promise<void> done;
    queue.post([&done] { done.set_value(); });
    ASSERT_EQ(done.get_future().wait_for(std::chrono::seconds(60)), std::future_status::ready);
}

} // namespace

TEST(TaskQueueStart, FailureIsThrownAndTheTaskIsDropped)
{
    const auto task = std::make_shared<int>(0);
    stats::TaskQueue queue;
    postInVain(queue, task);
    EXPECT_EQ(task.use_count(), 1);
}

TEST(TaskQueueStart, FailureIsOverWithTheNextTask)
{
    stats::TaskQueue queue;
    postInVain(queue, std::make_shared<int>(0));
    postInVain(queue, std::make_shared<int>(0));
    expectTaskRuns(queue);
}

TEST(TaskQueueStart, FailureOfOneQueueLeavesAnotherAlone)
{
    stats::TaskQueue failed;
    postInVain(failed, std::make_shared<int>(0));
    stats::TaskQueue queue;
    expectTaskRuns(queue);
}
