#pragma once

// The beginnings and joins of this program's threads: its pthread_create and pthread_join stand
// before the system's.

#include <atomic>

namespace thread_calls {

// While true, no thread can be started.
extern std::atomic<bool> threadsRunOut;

// Notices the first join, by any thread, after its construction.
class JoinWatch
{
public:
    JoinWatch();
    // Waits until a join has begun; false when none does within a minute.
    bool wait() const;

private:
    int joinsBefore;
};

} // namespace thread_calls
