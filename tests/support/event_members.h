#pragma once

#include <string_view>

namespace testing_support {

struct EventMember
{
    std::string_view key;
    std::string_view parameter; // of the template; empty for a member that is always empty
};

// An event's members in the order of its body: a deliberate copy that tests compare with the
// program's template.
inline constexpr EventMember eventMembers[] = {
    {"guid", "GUID"},
    {"country_id", "COUNTRY_ID"},
    {"pid", ""},
    {"adv_type", "ADVTYPE"},
    {"camp_type", "CAMPTYPE"},
    {"appid", "APPID"},
    {"ver", "VER"},
    {"event_type", "EVENT_TYPE"},
    {"event_number", "EVENT_NUMBER"},
    {"src", "SRC"},
    {"info_type", "INFO_TYPE"},
    {"info", "INFO"},
    {"inst_type", "INSTTYPE"},
    {"inst_ch", "INSTCH"},
    {"inst_ref", "INSTREF"},
    {"test", "TEST"},
    {"tc_build_num", "TC_BUILD_NUM"},
    {"product_name", "PRODUCT_NAME"},
    {"id_lmc_keys", "ID_LMC_KEYS"},
};

} // namespace testing_support
