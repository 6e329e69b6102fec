#include "ui/uninstall/src/stat_startup.h"

#include "ui/common/config/common_config.h"
#include "ui/common/stat/app_event_stat.h"
#include "ui/common/stat/decimal.h"
#include "ui/common/stat/install_identity.h"
#include "ui/common/stat/proxy_settings.h"
#include "ui/common/stat/user_location.h"
#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/application_config.h"

#include <memory>

namespace uninstall {

std::string applicationCode(int applicationId, bool suiteFlag)
{
    std::string code = shortCode(applicationId);
    if (applicationId != suiteId)
        return code;
    return code + (suiteFlag ? "_qx" : "_a");
}

void startStatistics(int applicationId, bool suiteFlag, const BlockingRunner& runBlocking)
{
    fs::CConfig& common = fs::commonConfig();
    const stats::ProxySettings proxy = stats::readProxySettings();
    std::string guid;
    fs::CConfig application;
    runBlocking([&] {
        stats::getUserCountry(proxy);
        guid = stats::getOrCreateClientGuid(common);
        application.setFileName(applicationConfigPath(applicationId));
        application.load();
    });

    const auto params = std::make_shared<stats::TemplateParams>();
    params->set("GUID", guid, true);
    params->set("COUNTRY_ID", common.getValue("Location", ""), true);
    params->set("APPID", applicationCode(applicationId, suiteFlag), true);
    params->set("VER", application.getValue("Version", "0.0.0.0"), true);
    stats::fillInstallParams(*params, application);

    const int eventNumber = stats::decimalFromText(application.getValue("EventNumber", "0"));
    const bool enabled = common.getBool("EventStatEnabled", false);
    stats::AppStatHelper::instance().init(params, enabled, eventNumber);
}

} // namespace uninstall
