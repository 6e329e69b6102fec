#include "ui/common/stat/http_post_form.h"

#include "ui/common/stat/service_request.h"
#include "ui/common/stat/url_encode.h"

#include <utility>

namespace stats {
namespace {

constexpr int defaultTimeoutSeconds = 10;

} // namespace

StatsPostResult httpPostForm(const std::string& url, const std::string& body, int timeoutSeconds)
{
    netpull::init();
    netpull::Request request = serviceRequest(
        url, readProxySettings(), timeoutSeconds >= 1 ? timeoutSeconds : defaultTimeoutSeconds);
    request.method = netpull::Method::post;
    request.postData = "data=" + urlEncode(body);
    request.headers = {"Content-Type: application/x-www-form-urlencoded"};

    netpull::Response response = netpull::fetch(request);
    return {response.transportCode, response.httpStatus, std::move(response.body)};
}

} // namespace stats
