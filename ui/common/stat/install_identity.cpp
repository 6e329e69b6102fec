#include "ui/common/stat/install_identity.h"

#include "ui/common/stat/exclusive_save.h"
#include "ui/common/stat/guid.h"
#include "ui/common/sys/environment.h"

namespace stats {
namespace {

constexpr const char* clientGuidKey = "ClientGuid";

// No value read from a file holds a line feed, so as a default it tells "absent" from "empty".
constexpr const char* absent = "\n";

} // namespace

std::string getOrCreateClientGuid(fs::CConfig& common)
{
    std::string guid = common.getValue(clientGuidKey, absent);
    if (guid != absent)
        return guid;
    guid = createGuid();
    common.setValue(clientGuidKey, guid);
    saveExclusively(common);
    return guid;
}

void fillInstallParams(TemplateParams& params, const fs::CConfig& appConfig)
{
    const char* const debugSuffix = sys::environmentSwitch("CV_DEBUG") ? "_DBG" : "";
    params.set("ADVTYPE", appConfig.getValue("AdvType", "") + debugSuffix, true);
    params.set("CAMPTYPE", appConfig.getValue("CampType", ""), true);
    params.set("INSTTYPE", appConfig.getValue("InstType", ""), true);
    params.set("INSTCH", appConfig.getValue("InstChannel", ""), true);
    params.set("INSTREF", appConfig.getValue("InstRef", ""), true);
    params.set("TC_BUILD_NUM", appConfig.getValue("TCBuildNum", ""), true);
}

} // namespace stats
