#include "bench/host/fake_service.h"

#include "support/netpull/netpull.h"

#include <atomic>

namespace {

std::atomic<bench::Service*> currentService{nullptr};

} // namespace

namespace bench {

Service::Service()
{
    currentService = this;
    netpull::setFetch([](const netpull::Request&) {
        currentService.load()->answer();
        return netpull::Response{0, 200, {}};
    });
}

Service::~Service()
{
    netpull::setFetch(nullptr);
    currentService = nullptr;
}

void Service::holdAnswers()
{
    const std::lock_guard lock(mutex);
    holding = true;
}

void Service::release()
{
    const std::lock_guard lock(mutex);
    holding = false;
    changed.notify_all();
}

void Service::waitForRequests(int count)
{
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return requests >= count; });
}

void Service::answer()
{
    std::unique_lock lock(mutex);
    ++requests;
    changed.notify_all();
    changed.wait(lock, [&] { return !holding; });
}

} // namespace bench
