#include "bench/host/seams.h"

#include "support/netpull/netpull.h"
#include "ui/common/config/common_config.h"

#include <atomic>

namespace {

std::atomic<bench::Service*> currentService{nullptr};

} // namespace

namespace bench {

Service::Service()
{
    currentService = this;
}

Service::~Service()
{
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

namespace netpull {

void init() {}

Response fetch(const Request&)
{
    currentService.load()->answer();
    return {0, 200, {}};
}

} // namespace netpull

namespace fs {

CConfig& commonConfig()
{
    static CConfig config;
    return config;
}

} // namespace fs
