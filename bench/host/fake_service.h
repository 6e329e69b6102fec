#pragma once

// The network as the benchmarks want it: no network. While a Service exists, it answers every
// request with status 200.

#include <condition_variable>
#include <mutex>

namespace bench {

class Service
{
public:
    Service();
    ~Service();
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    // Requests wait from now on until release().
    void holdAnswers();
    void release();
    void waitForRequests(int count);

    // Called by netpull's stand-in, on the worker.
    void answer();

private:
    std::mutex mutex;
    std::condition_variable changed;
    bool holding = false;
    int requests = 0;
};

} // namespace bench
