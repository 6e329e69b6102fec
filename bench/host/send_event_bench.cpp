// What AppStatHelper::sendEvent costs the thread that calls it, beside the building of the body
// alone.

#include "bench/host/event_texts.h"
#include "bench/host/fake_service.h"
#include "ui/common/stat/app_event_stat.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <thread>

namespace {

class Helper : public stats::AppStatHelper
{
public:
    Helper() { init(std::make_shared<stats::TemplateParams>(bench::sharedParams()), true, 0); }

    void send() { sendEvent("click", "uninstall_quiz_features", "", "", false, 0); }
};

void eventBody(benchmark::State& state)
{
    const stats::TemplateParams params = bench::sharedParams();
    for (auto _ : state)
        benchmark::DoNotOptimize(stats::buildEventBody(params, bench::eventTexts()));
}

// A post is under way, so the event is only queued.
void sendEventToABusyWorker(benchmark::State& state)
{
    bench::Service service;
    Helper helper; // its end drops what is still queued
    service.holdAnswers();
    helper.send();
    service.waitForRequests(1); // the worker now waits for the service
    for (auto _ : state)
        helper.send();
    service.release();
}

// Nothing is under way, so a worker thread is started.
void sendEventToAnIdleWorker(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    bench::Service service;
    Helper helper;
    int sent = 0;
    for (auto _ : state) {
        const auto begun = Clock::now();
        helper.send();
        const std::chrono::duration<double> spent = Clock::now() - begun;
        state.SetIterationTime(spent.count());
        service.waitForRequests(++sent);
        // After its answer the worker still has to find the queue empty and end.
        std::this_thread::sleep_for(std::chrono::microseconds(300));
    }
}

} // namespace

BENCHMARK(eventBody);
BENCHMARK(sendEventToABusyWorker)->Iterations(20'000);
BENCHMARK(sendEventToAnIdleWorker)->UseManualTime()->Iterations(2'000);
