// The time of AppStatHelper::sendEvent on the calling thread, compared with building the body
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

// While a post is in flight the event is only queued.
void sendEventToABusyWorker(benchmark::State& state)
{
    bench::Service service;
    Helper helper; // its destructor drops the queue
    service.holdAnswers();
    helper.send();
    service.waitForRequests(1); // the worker now waits for the service
    for (auto _ : state)
        helper.send();
    service.release();
}

// With nothing in flight a worker thread is started.
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
        // After the answer the worker finds the queue empty and ends. Nothing announces its end.
        std::this_thread::sleep_for(std::chrono::microseconds(300));
    }
}

} // namespace

BENCHMARK(eventBody);
BENCHMARK(sendEventToABusyWorker)->Iterations(20'000);
BENCHMARK(sendEventToAnIdleWorker)->UseManualTime()->Iterations(2'000);
