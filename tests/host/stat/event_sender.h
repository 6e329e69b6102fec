#pragma once

// What the tests of the event sender share.

#include "tests/host/stat/stat_fixture.h"
#include "ui/common/stat/app_event_stat.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

namespace event_sender {

constexpr auto deadline = std::chrono::seconds(60);

// A helper of the test's own, independent of the process-wide one.
class Helper : public stats::AppStatHelper
{};

// Counts answered requests and waits for them.
class AnswerCounter
{
public:
    void count()
    {
        const std::lock_guard lock(mutex);
        ++answers;
        changed.notify_all();
    }
    bool waitFor(int expected)
    {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, deadline, [&] { return answers >= expected; });
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    int answers = 0;
};

// The event's body, decoded.
inline std::string bodyOf(const netpull::Request& request)
{
    std::string body;
    for (std::size_t index = std::string("data=").size(); index < request.postData.size();
         ++index) {
        if (request.postData[index] == '%') {
            body +=
                static_cast<char>(std::stoi(request.postData.substr(index + 1, 2), nullptr, 16));
            index += 2;
        } else {
            body += request.postData[index];
        }
    }
    return body;
}

inline std::string memberOf(const std::string& body, const std::string& name)
{
    const std::string start = "\"" + name + "\":\"";
    const std::size_t begin = body.find(start) + start.size();
    return body.substr(begin, body.find('"', begin) - begin);
}

inline std::string memberOf(const netpull::Request& request, const std::string& name)
{
    return memberOf(bodyOf(request), name);
}

inline netpull::Response status(int httpStatus, const std::string& body = {})
{
    return {0, httpStatus, body};
}

class EventSender : public StatTest
{
protected:
    std::shared_ptr<stats::TemplateParams> params = std::make_shared<stats::TemplateParams>();
    Helper helper;

    int sendNow(const std::string& type = "click")
    {
        return helper.sendEvent(type, "source", "", "", true, 0);
    }
};

} // namespace event_sender
