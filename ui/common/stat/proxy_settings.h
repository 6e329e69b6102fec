#pragma once

#include <string>

namespace stats {

// The HTTP proxy of the suite's common configuration; an empty address means none.
struct ProxySettings
{
    std::string address;
    int port = 80;
    std::string user;
    std::string password;
};

// The present values of ProxyAddress, ProxyPort, ProxyUser and ProxyPw in commonConfig(). ProxyType
// is only a switch: 0 or absent means no proxy. Any thread.
ProxySettings readProxySettings();

} // namespace stats
