#pragma once

#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>

namespace fs {

// A mutex that reports a second lock by the thread that holds it as an error. With a std::mutex the
// behaviour is undefined; usually the thread waits for ever.
class OwnedMutex
{
public:
    // Throws std::system_error (resource_deadlock_would_occur) when this thread holds the lock.
    void lock()
    {
        if (owner == std::this_thread::get_id())
            throw std::system_error(std::make_error_code(std::errc::resource_deadlock_would_occur));
        mutex.lock();
        owner = std::this_thread::get_id();
    }
    void unlock()
    {
        owner = std::thread::id();
        mutex.unlock();
    }

private:
    std::mutex mutex;
    std::atomic<std::thread::id> owner;
};

} // namespace fs
