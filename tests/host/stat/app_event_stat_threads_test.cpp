// Events from several threads, and the sender's end.

#include "tests/host/stat/event_sender.h"
#include "tests/host/stat/thread_calls.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <map>
#include <memory>
#include <set>
#include <thread>
#include <vector>

using event_sender::AnswerCounter;
using event_sender::bodyOf;
using event_sender::deadline;
using event_sender::memberOf;
using event_sender::status;

namespace {

using AppEventStatThreads = event_sender::EventSender;
using Helper = event_sender::Helper;

} // namespace

TEST_F(AppEventStatThreads, ReturnsBeforeTheServiceAnswers)
{
    std::promise<void> gate;
    std::shared_future<void> opened = gate.get_future().share();
    AnswerCounter counter;
    scripted::setServer([&](const netpull::Request&) {
        opened.wait_for(deadline);
        counter.count();
        return status(200);
    });
    helper.init(params, true, 0);
    for (int number = 1; number <= 3; ++number)
        EXPECT_EQ(helper.sendEvent("click", "source", "", "", false, 0), number);
    EXPECT_LE(scripted::requests().size(), 1U);
    gate.set_value();
    EXPECT_TRUE(counter.waitFor(3));
}

TEST_F(AppEventStatThreads, OtherThreadsNeedNotWaitForASynchronousPost)
{
    std::future<int> other;
    AnswerCounter counter;
    scripted::setServer([&](const netpull::Request& request) {
        if (memberOf(request, "event_number") == "1") {
            other = std::async(std::launch::async, [&] {
                return helper.sendEvent("click", "source", "", "", false, 0);
            });
            EXPECT_EQ(other.wait_for(deadline), std::future_status::ready);
        }
        counter.count();
        return status(200);
    });
    helper.init(params, true, 0);
    EXPECT_EQ(sendNow(), 1);
    EXPECT_EQ(other.get(), 2);
    EXPECT_TRUE(counter.waitFor(2));
}

TEST_F(AppEventStatThreads, SendsEventsOfManyThreadsOneByOneAndInOrder)
{
    constexpr int threadCount = 8;
    constexpr int eventsEach = 125;
    AnswerCounter counter;
    std::atomic<int> inFlight{0};
    std::atomic<int> mostInFlight{0};
    scripted::setServer([&](const netpull::Request&) {
        mostInFlight = std::max(mostInFlight.load(), ++inFlight);
        std::this_thread::yield();
        --inFlight;
        counter.count();
        return status(200);
    });
    helper.init(params, true, 0);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            for (int index = 0; index < eventsEach; ++index)
                helper.sendEvent("t", std::to_string(thread), "", "", false, 0);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    ASSERT_TRUE(counter.waitFor(threadCount * eventsEach));

    EXPECT_EQ(mostInFlight, 1);
    std::set<int> numbers;
    std::map<std::string, int> lastOfThread;
    for (const netpull::Request& request : scripted::requests()) {
        const std::string body = bodyOf(request);
        const int number = std::stoi(memberOf(body, "event_number"));
        int& last = lastOfThread[memberOf(body, "src")];
        EXPECT_GT(number, last) << "the events of one thread arrive in order";
        last = number;
        numbers.insert(number);
    }
    EXPECT_EQ(numbers.size(), 1000U);
    EXPECT_EQ(*numbers.begin(), 1);
    EXPECT_EQ(*numbers.rbegin(), 1000);
}

TEST_F(AppEventStatThreads, CompletesThePostUnderWayAtTheEndAndDropsTheRest)
{
    std::atomic<int> completed{0};
    std::promise<void> started;
    scripted::setServer([&](const netpull::Request&) {
        if (completed == 0) {
            const thread_calls::JoinWatch end;
            started.set_value();
            EXPECT_TRUE(end.wait()) << "the helper's end waits for its worker";
        }
        ++completed;
        return status(200);
    });
    auto shortLived = std::make_unique<Helper>();
    shortLived->init(params, true, 0);
    for (int index = 0; index < 101; ++index)
        shortLived->sendEvent("t", "s", "", "", false, 0);
    ASSERT_EQ(started.get_future().wait_for(deadline), std::future_status::ready);
    shortLived.reset();
    EXPECT_EQ(completed, 1);
    EXPECT_EQ(scripted::requests().size(), 1U);
}
