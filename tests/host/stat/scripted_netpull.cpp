#include "tests/host/stat/scripted_netpull.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <mutex>

namespace {

struct Script
{
    std::mutex mutex;
    scripted::Server server;
    std::vector<netpull::Request> requests;
};

Script& script()
{
    static Script instance;
    return instance;
}

netpull::Response answer(const netpull::Request& request)
{
    scripted::Server server;
    {
        const std::lock_guard lock(script().mutex);
        script().requests.push_back(request);
        server = script().server;
    }
    return server(request);
}

} // namespace

namespace scripted {

void setServer(Server server)
{
    netpull::setFetch(&answer);
    const std::lock_guard lock(script().mutex);
    script().server = std::move(server);
    script().requests.clear();
}

void answerInOrder(std::vector<netpull::Response> answers)
{
    const auto next = std::make_shared<std::atomic<std::size_t>>(0);
    setServer([answers = std::move(answers), next](const netpull::Request& request) {
        const std::size_t index = (*next)++;
        if (index < answers.size())
            return answers[index];
        ADD_FAILURE() << "an unexpected request: " << request.url;
        return netpull::Response{7, 0, {}};
    });
}

std::vector<netpull::Request> requests()
{
    const std::lock_guard lock(script().mutex);
    return script().requests;
}

} // namespace scripted
