#include "tests/host/stat/thread_calls.h"

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <dlfcn.h>
#include <mutex>
#include <pthread.h>

namespace {

struct Joins
{
    std::mutex mutex; // guards what follows
    std::condition_variable changed;
    int begun = 0;
};

// Never destroyed: threads are joined while the program ends, too.
Joins& joins()
{
    static Joins& instance = *new Joins;
    return instance;
}

} // namespace

namespace thread_calls {

std::atomic<bool> threadsRunOut{false};

JoinWatch::JoinWatch()
{
    const std::lock_guard lock(joins().mutex);
    joinsBefore = joins().begun;
}

bool JoinWatch::wait() const
{
    std::unique_lock lock(joins().mutex);
    return joins().changed.wait_for(lock, std::chrono::seconds(60),
                                    [this] { return joins().begun > joinsBefore; });
}

} // namespace thread_calls

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's are reserved
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                              void* (*routine)(void*), void* argument)
{
    if (thread_calls::threadsRunOut)
        return EAGAIN;
    static const auto next =
        reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
    return next(thread, attributes, routine, argument);
}

extern "C" int pthread_join(pthread_t thread, void** result)
{
    {
        const std::lock_guard lock(joins().mutex);
        ++joins().begun;
        joins().changed.notify_all();
    }
    static const auto next =
        reinterpret_cast<decltype(&pthread_join)>(dlsym(RTLD_NEXT, "pthread_join"));
    return next(thread, result);
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
