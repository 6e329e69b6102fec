#pragma once

#include "ui/common/stat/event_body.h"
#include "ui/common/stat/task_queue.h"
#include "ui/common/stat/template_params.h"

#include <memory>
#include <mutex>
#include <string>

namespace stats {

// Sends usage events to the statistics service. One event is one form POST on a worker thread,
// one at a time, in the order of the calls; a failure is logged and the event is lost.
//
// Threads: any.
// Stop: at process exit the post under way is completed (at most two requests of up to 10 seconds
// each), and events that still wait are dropped.
class AppStatHelper
{
public:
    static AppStatHelper& instance();

    // Takes the parameter set over: each event writes EVENT_NUMBER and TEST into it, so the caller
    // must not use it any more. `eventNumber` is the last number in use. Events are marked as test
    // events, but sent to the same address, when the environment variable SET_TEST_STAT_HOST is
    // exactly "1".
    void init(std::shared_ptr<TemplateParams> params, bool enabled, int eventNumber);

    // Queues one event, or posts it before returning when `sync` is true. An `eventNumber` of 0
    // takes the next number; any other is used unchanged and does not affect the count. Returns
    // the number used, or 0 when statistics are off or not initialised.
    int sendEvent(const std::string& eventType, const std::string& src, const std::string& infoType,
                  const std::string& info, bool sync, int eventNumber);

    AppStatHelper(const AppStatHelper&) = delete;
    AppStatHelper& operator=(const AppStatHelper&) = delete;

protected:
    AppStatHelper() = default;
    ~AppStatHelper() = default;

private:
    std::shared_ptr<TemplateParams> params;
    std::mutex mutex; // guards everything but the queue
    bool enabled = false;
    bool testMode = false;
    int eventCounter = 0;
    TaskQueue queue; // last, so that it is destroyed first and its worker ends
};

} // namespace stats
