#include "ui/common/stat/app_event_stat.h"

#include "support/keelbase/keelbase.h"
#include "ui/common/stat/http_post_form.h"
#include "ui/common/stat/service_endpoints.h"
#include "ui/common/sys/environment.h"

#include <utility>

namespace stats {
namespace {

// These messages are known by their category, source and line, so the lines are fixed.
constexpr Keelbase::LogSource logSource{"AppEventStat", "ui/common/stat/app_event_stat"};
constexpr int rejectedLine = 65;
constexpr int transportErrorLine = 68;
constexpr int deliveredLine = 71;

constexpr int firstRejectingStatus = 400;

bool isRejected(const StatsPostResult& result)
{
    return result.transportCode == 0 && result.httpStatus >= firstRejectingStatus;
}

void postEvent(const std::string& body)
{
    const StatsPostResult first = httpPostForm(eventEndpoint, body, 0);
    if (first.transportCode != 0) {
        KEELBASE_LOG_AT(logSource, Keelbase::levelDetail, transportErrorLine)
            << "stats::sendEvent: curl " << first.transportCode;
        return;
    }
    if (!isRejected(first)) {
        KEELBASE_LOG_AT(logSource, Keelbase::levelDetail, deliveredLine) << "stats::sendEvent: ok";
        return;
    }
    const StatsPostResult second = httpPostForm(eventEndpoint, body, 0);
    if (isRejected(second)) {
        KEELBASE_LOG_AT(logSource, Keelbase::levelError, rejectedLine)
            << "stats::sendEvent rejected: http " << second.httpStatus << " | " << second.body;
    }
}

// Wraps from the largest number to the smallest: a damaged EventNumber may hold any value.
int nextNumber(int number)
{
    return static_cast<int>(static_cast<unsigned>(number) + 1U);
}

} // namespace

AppStatHelper& AppStatHelper::instance()
{
    static AppStatHelper helper;
    return helper;
}

void AppStatHelper::init(std::shared_ptr<TemplateParams> newParams, bool newEnabled,
                         int eventNumber)
{
    const std::lock_guard lock(mutex);
    params = std::move(newParams);
    eventCounter = eventNumber;
    enabled = newEnabled;
    if (sys::environmentSwitch("SET_TEST_STAT_HOST"))
        testMode = true;
}

int AppStatHelper::sendEvent(const std::string& eventType, const std::string& src,
                             const std::string& infoType, const std::string& info, bool sync,
                             int eventNumber)
{
    std::unique_lock lock(mutex);
    if (!enabled || !params)
        return 0;
    if (eventNumber == 0) {
        eventCounter = nextNumber(eventCounter);
        eventNumber = eventCounter;
    }
    params->set("EVENT_NUMBER", std::to_string(eventNumber), true);
    params->set("TEST", testMode ? "1" : "0", true);
    std::string body = buildEventBody(*params, {eventType, src, infoType, info});
    lock.unlock();

    if (sync)
        postEvent(body);
    else
        queue.post([body = std::move(body)] { postEvent(body); });
    return eventNumber;
}

} // namespace stats
