#include "ui/common/stat/user_location.h"

#include "support/keelbase/keelbase.h"
#include "ui/common/config/common_config.h"
#include "ui/common/stat/service_endpoints.h"
#include "ui/common/stat/service_request.h"
#include "ui/common/sys/environment.h"
#include "ui/common/sys/result_codes.h"

#include <algorithm>
#include <new>

namespace stats {
namespace {

// A deliberate oddity: these messages appear under the main window's source, with fixed lines.
constexpr Keelbase::LogSource logSource{"MainForm", "ui/uninstall/src/widget"};
constexpr int debugSkipLine = 152;
constexpr int returnedErrorLine = 160;
constexpr int successLine = 164;
constexpr int exceptionLine = 170;

constexpr const char* locationKey = "Location";
constexpr int timeoutSeconds = 15;

// The answer up to its first NUL. A settings file is written up to its first NUL, so one in a value
// would lose the keys that follow.
std::string countryFrom(const sys::DataBuff& answer)
{
    std::string text = answer.toString();
    text.resize(std::min(text.find('\0'), text.size()));
    return text;
}

} // namespace

int getUserLocation(sys::DataBuff& out, const ProxySettings& proxy)
{
    const netpull::Response response =
        netpull::fetch(serviceRequest(countryEndpoint, proxy, timeoutSeconds));
    if (response.transportCode != 0)
        return response.transportCode;
    if (response.body.empty())
        return sys::emptyAnswer;
    if (!out.assignString(response.body))
        throw std::bad_alloc();
    return sys::success;
}

void getOrCreateUserLocation(const ProxySettings& proxy)
{
    fs::CConfig& common = fs::commonConfig();
    if (sys::environmentSwitch("CV_DEBUG_WITHOUT_UPDATE_LOCATION") &&
        !common.getValue(locationKey, "").empty()) {
        KEELBASE_LOG_AT(logSource, Keelbase::levelInformation, debugSkipLine)
            << "getOrCreateUserLocation | CV_DEBUG_WITHOUT_UPDATE_LOCATION is true";
        return;
    }
    try {
        sys::DataBuff answer;
        if (getUserLocation(answer, proxy) != sys::success) {
            KEELBASE_LOG_AT(logSource, Keelbase::levelError, returnedErrorLine)
                << "getOrCreateUserLocation | dlutil_getUserLocation returned error";
            return;
        }
        const std::string country = countryFrom(answer);
        KEELBASE_LOG_AT(logSource, Keelbase::levelInformation, successLine)
            << "getOrCreateUserLocation | " << country;
        common.setValue(locationKey, country);
        common.save();
    } catch (...) {
        KEELBASE_LOG_AT(logSource, Keelbase::levelError, exceptionLine)
            << "Failed to dlutil_getUserLocation()";
    }
}

std::string getUserCountry(const ProxySettings& proxy)
{
    const fs::CConfig& common = fs::commonConfig();
    std::string stored = common.getValue(locationKey, "");
    if (!stored.empty())
        return stored;
    getOrCreateUserLocation(proxy);
    return common.getValue(locationKey, "");
}

} // namespace stats
