#include "ui/common/stat/service_endpoints.h"

namespace stats {

const char* const eventEndpoint = "https://" TESSERA_STATS_HOST "/AddEventJSONString.php";
const char* const countryEndpoint = "https://" TESSERA_GEO_HOST "/?instType=country";

} // namespace stats
