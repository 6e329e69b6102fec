#pragma once

#include "ui/common/stat/proxy_settings.h"
#include "ui/common/sys/data_buff.h"

#include <string>

namespace stats {

// The user's country for the statistics: the key Location of common.cfg, asked from the geo
// service and saved there while there is none. Any thread; nothing throws for a failed lookup.

// Returns the stored country. Without one it asks the service first, which blocks for up to its
// 15 seconds, and returns an empty text when that fails.
std::string getUserCountry(const ProxySettings& proxy);

// Asks the service and stores its answer as it is. The environment variable
// CV_DEBUG_WITHOUT_UPDATE_LOCATION at exactly "1" keeps a country that is already stored. Failures
// are logged and leave the stored country alone.
void getOrCreateUserLocation(const ProxySettings& proxy);

// One request to the service. Returns 0 with the answer in `out`, the transport library's error
// code, or sys::emptyAnswer. The HTTP status does not count.
int getUserLocation(sys::DataBuff& out, const ProxySettings& proxy);

} // namespace stats
