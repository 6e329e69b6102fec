#pragma once

#include "support/netpull/netpull.h"
#include "ui/common/stat/proxy_settings.h"

#include <algorithm>
#include <string>

namespace stats {

// A request to one of the suite's services, with the limits that all of them share: 10 seconds
// until connected and 15 in all, or timeoutSeconds if that is more. Pure; any thread.
inline netpull::Request serviceRequest(const std::string& url, const ProxySettings& proxy,
                                       int timeoutSeconds)
{
    netpull::Request request;
    request.url = url;
    request.proxy = {proxy.address, proxy.port, proxy.user, proxy.password};
    request.verifyServer = true;
    request.httpVersion = 1;
    request.connectSeconds = 10;
    request.timeoutSeconds = timeoutSeconds;
    request.longestSeconds = std::max(15, timeoutSeconds);
    return request;
}

} // namespace stats
