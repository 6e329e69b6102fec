#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace stats {

// Runs tasks one at a time, in the order they are posted, on a worker thread that exists only while
// there are tasks.
//
// Threads: post may be called from any thread and from a running task. The destructor must not
// run inside a task.
// Stop: the destructor waits for the task that is running; tasks that still wait are dropped.
class TaskQueue
{
public:
    TaskQueue() = default;
    ~TaskQueue();
    TaskQueue(const TaskQueue&) = delete;
    TaskQueue& operator=(const TaskQueue&) = delete;

    // Throws std::system_error when the worker cannot be started; the task is dropped then, and a
    // later one tries again. A task must not throw.
    void post(std::function<void()> task);

private:
    void runTasks();

    std::deque<std::function<void()>> tasks;
    std::mutex mutex;
    std::thread worker;
    std::atomic<bool> workerRunning{false};
    std::atomic<bool> accepting{true}; // false: the worker ends after its task
    std::atomic<bool> open{true};      // false: the queue is being destroyed, worker or not
};

} // namespace stats
