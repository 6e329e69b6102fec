#include "ui/common/stat/event_body.h"

#include <string_view>

namespace stats {
namespace {

// "pid" is always empty.
constexpr std::string_view bodyText =
    R"({"guid":"{GUID}","country_id":"{COUNTRY_ID}","pid":"","adv_type":"{ADVTYPE}",)"
    R"("camp_type":"{CAMPTYPE}","appid":"{APPID}","ver":"{VER}","event_type":"{EVENT_TYPE}",)"
    R"("event_number":"{EVENT_NUMBER}","src":"{SRC}","info_type":"{INFO_TYPE}",)"
    R"("info":"{INFO}","inst_type":"{INSTTYPE}","inst_ch":"{INSTCH}","inst_ref":"{INSTREF}",)"
    R"("test":"{TEST}","tc_build_num":"{TC_BUILD_NUM}","product_name":"{PRODUCT_NAME}",)"
    R"("id_lmc_keys":"{ID_LMC_KEYS}"})";

} // namespace

std::string buildEventBody(const TemplateParams& shared, const EventTexts& texts)
{
    TemplateParams params = shared;
    params.set({{"SRC", texts.src}, {"EVENT_TYPE", texts.eventType}}, false);
    params.set({{"INFO_TYPE", texts.infoType}, {"INFO", texts.info}}, false);
    return params.expand(bodyText, false).text;
}

} // namespace stats
