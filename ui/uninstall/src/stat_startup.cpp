#include "ui/common/stat/stat_startup.h"

#include "ui/common/config/common_config.h"
#include "ui/common/stat/app_event_stat.h"
#include "ui/common/stat/decimal.h"
#include "ui/common/stat/install_identity.h"
#include "ui/common/stat/proxy_settings.h"
#include "ui/common/stat/user_location.h"
#include "ui/uninstall/src/app_catalogue.h"

#include <memory>

namespace stats {

std::string applicationCode(int applicationId, bool suiteFlag)
{
    std::string code = uninstall::shortCode(applicationId);
    if (applicationId != uninstall::suiteId)
        return code;
    return code + (suiteFlag ? "_qx" : "_a");
}

void startStatistics(int applicationId, bool suiteFlag, const BlockingRunner& runBlocking)
{
    fs::CConfig& common = fs::commonConfig();
    const ProxySettings proxy = readProxySettings();
    std::string guid;
    fs::CConfig application;
    runBlocking([&] {
        getUserCountry(proxy);
        guid = getOrCreateClientGuid(common);
        application.setFileName(fs::applicationConfigPath(applicationId));
        application.load();
    });

    const auto params = std::make_shared<TemplateParams>();
    params->set("GUID", guid, true);
    params->set("COUNTRY_ID", common.getValue("Location", ""), true);
    params->set("APPID", applicationCode(applicationId, suiteFlag), true);
    params->set("VER", application.getValue("Version", "0.0.0.0"), true);
    fillInstallParams(*params, application);

    const int eventNumber = decimalFromText(application.getValue("EventNumber", "0"));
    const bool enabled = common.getBool("EventStatEnabled", false);
    AppStatHelper::instance().init(params, enabled, eventNumber);
}

} // namespace stats
