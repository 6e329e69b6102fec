#pragma once

#include <string>

namespace stats {

struct StatsPostResult
{
    int transportCode = 0; // 0, or the transport library's error code
    int httpStatus = 0;    // 0 when there was no answer
    std::string body;
};

// Posts "data=" and the encoded body as a form, through the configured proxy, and waits for the
// answer. A time-out below 1 means the default of 10 seconds. Any thread.
StatsPostResult httpPostForm(const std::string& url, const std::string& body, int timeoutSeconds);

} // namespace stats
