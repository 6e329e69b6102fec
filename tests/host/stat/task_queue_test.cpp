#include "tests/host/stat/thread_calls.h"
#include "ui/common/stat/task_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <set>
#include <thread>
#include <vector>

using stats::TaskQueue;
using namespace std::chrono_literals;

namespace {

constexpr auto deadline = 60s;

// Posts a task and waits until it has run.
bool runsToItsEnd(TaskQueue& queue)
{
    const auto done = std::make_shared<std::promise<void>>();
    std::future<void> future = done->get_future();
    queue.post([done] { done->set_value(); });
    return future.wait_for(deadline) == std::future_status::ready;
}

} // namespace

TEST(TaskQueue, RunsTasksInOrderOffTheCallersThread)
{
    std::vector<int> order;
    std::set<std::thread::id> threads;
    TaskQueue queue;
    for (int index = 0; index < 1000; ++index) {
        queue.post([&, index] {
            order.push_back(index);
            threads.insert(std::this_thread::get_id());
        });
    }
    ASSERT_TRUE(runsToItsEnd(queue));
    ASSERT_EQ(order.size(), 1000U);
    for (int index = 0; index < 1000; ++index)
        EXPECT_EQ(order[static_cast<std::size_t>(index)], index);
    EXPECT_EQ(threads.count(std::this_thread::get_id()), 0U);
}

TEST(TaskQueue, NeverRunsTwoTasksAtOnce)
{
    std::atomic<int> running{0};
    std::atomic<int> most{0};
    TaskQueue queue;
    std::vector<std::thread> callers;
    for (int caller = 0; caller < 8; ++caller) {
        callers.emplace_back([&] {
            for (int index = 0; index < 200; ++index) {
                queue.post([&] {
                    most = std::max(most.load(), ++running);
                    std::this_thread::yield();
                    --running;
                });
            }
        });
    }
    for (std::thread& caller : callers)
        caller.join();
    ASSERT_TRUE(runsToItsEnd(queue));
    EXPECT_EQ(most, 1);
}

TEST(TaskQueue, StartsANewWorkerForLaterTasks)
{
    TaskQueue queue;
    for (int round = 0; round < 500; ++round)
        ASSERT_TRUE(runsToItsEnd(queue)) << "round " << round;
}

TEST(TaskQueue, HasNoThreadWhileItIsEmpty)
{
    struct ThreadEnd
    {
        std::promise<void>& ended;
        ~ThreadEnd() { ended.set_value(); }
    };
    std::promise<void> ended;
    TaskQueue queue;
    queue.post([&] { thread_local ThreadEnd end{ended}; });
    EXPECT_EQ(ended.get_future().wait_for(deadline), std::future_status::ready);
}

TEST(TaskQueue, AcceptsATaskFromARunningTask)
{
    std::promise<void> inner;
    TaskQueue queue;
    queue.post([&] { queue.post([&] { inner.set_value(); }); });
    EXPECT_EQ(inner.get_future().wait_for(deadline), std::future_status::ready);
}

TEST(TaskQueue, CompletesTheRunningTaskAndDropsTheWaitingOnesAtItsEnd)
{
    std::atomic<bool> firstCompleted{false};
    std::atomic<int> others{0};
    std::promise<void> started;
    auto queue = std::make_unique<TaskQueue>();
    queue->post([&] {
        const thread_calls::JoinWatch end;
        started.set_value();
        EXPECT_TRUE(end.wait()) << "the queue's end waits for its worker";
        firstCompleted = true;
    });
    for (int index = 0; index < 100; ++index)
        queue->post([&] { ++others; });
    ASSERT_EQ(started.get_future().wait_for(deadline), std::future_status::ready);
    queue.reset();
    EXPECT_TRUE(firstCompleted);
    EXPECT_EQ(others, 0);
}

TEST(TaskQueue, RefusesATaskOnceItsEndHasBegun)
{
    std::atomic<bool> refused{false};
    std::atomic<int> run{0};
    std::promise<void> started;
    auto queue = std::make_unique<TaskQueue>();
    TaskQueue& ending = *queue;
    queue->post([&] {
        started.set_value();
        // Posts until the queue no longer keeps what it is given.
        const auto giveUp = std::chrono::steady_clock::now() + deadline;
        while (!refused && std::chrono::steady_clock::now() < giveUp) {
            const auto token = std::make_shared<int>(0);
            ending.post([token, &run] { ++run; });
            refused = token.use_count() == 1;
        }
    });
    started.get_future().wait();
    queue.reset();
    EXPECT_TRUE(refused);
    EXPECT_EQ(run, 0);
}
