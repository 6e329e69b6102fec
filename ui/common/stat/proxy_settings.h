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

// Reads ProxyType, ProxyAddress, ProxyPort, ProxyUser and ProxyPw of common.cfg as they are in
// memory now. ProxyType only switches: 0 or absent is no proxy. Any thread.
ProxySettings readProxySettings();

} // namespace stats
