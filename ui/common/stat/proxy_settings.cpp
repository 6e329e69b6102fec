#include "ui/common/stat/proxy_settings.h"

#include "ui/common/config/common_config.h"
#include "ui/common/stat/decimal.h"

namespace stats {

ProxySettings readProxySettings()
{
    const fs::CConfig& common = fs::commonConfig();
    ProxySettings proxy;
    if (decimalFromText(common.getValue("ProxyType", "0")) == 0)
        return proxy;
    proxy.address = common.getValue("ProxyAddress", "");
    if (!common.getValue("ProxyPort", "").empty())
        proxy.port = decimalFromText(common.getValue("ProxyPort", "80"));
    proxy.password = common.getValue("ProxyPw", "");
    proxy.user = common.getValue("ProxyUser", "");
    return proxy;
}

} // namespace stats
