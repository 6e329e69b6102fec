#include "ui/common/stat/install_identity.h"

#include "ui/common/stat/guid.h"
#include "ui/common/sys/environment.h"

namespace stats {
namespace {

constexpr const char* clientGuidKey = "ClientGuid";

} // namespace

std::string getOrCreateClientGuid(fs::CConfig& common)
{
    if (common.has(clientGuidKey))
        return common.getValue(clientGuidKey, "");
    std::string guid = createGuid();
    common.setValue(clientGuidKey, guid);
    common.save();
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
