#pragma once

// Replaces the network: while a Service exists, it answers every request with status 200.

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

    // Makes requests wait until release().
    void holdAnswers();
    void release();
    void waitForRequests(int count);

    // Called for every request, on the worker thread.
    void answer();

private:
    std::mutex mutex;
    std::condition_variable changed;
    bool holding = false;
    int requests = 0;
};

} // namespace bench
