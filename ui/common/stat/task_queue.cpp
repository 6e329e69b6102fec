#include "ui/common/stat/task_queue.h"

#include <utility>

namespace stats {

TaskQueue::~TaskQueue()
{
    open = false;
    if (worker.joinable()) {
        accepting = false;
        worker.join();
    }
}

void TaskQueue::post(std::function<void()> task)
{
    if (!accepting || !open)
        return;
    const std::lock_guard lock(mutex);
    if (!workerRunning) {
        // The previous worker has left its loop, so this does not block.
        if (worker.joinable())
            worker.join();
        worker = std::thread([this] { runTasks(); });
        workerRunning = true;
    }
    tasks.push_back(std::move(task)); // the worker looks for it once the lock is free
}

void TaskQueue::runTasks()
{
    do {
        std::function<void()> task;
        {
            const std::lock_guard lock(mutex);
            if (tasks.empty()) {
                workerRunning = false;
                return;
            }
            task = std::move(tasks.front());
            tasks.pop_front();
        }
        task();
    } while (accepting);
}

} // namespace stats
