#pragma once

#include "ui/common/stat/proxy_settings.h"
#include "ui/common/sys/data_buff.h"

#include <string>

namespace stats {

// The user's country for the statistics: the key Location of common.cfg, which is filled from the
// geo service when it is absent. Any thread; nothing throws for a failed lookup.

// Returns the stored country. Without one it asks the service first, for up to 15 seconds, and
// returns an empty text when that fails.
std::string getUserCountry(const ProxySettings& proxy);

// Asks the service and stores its answer, up to a NUL in it. If the environment variable
// CV_DEBUG_WITHOUT_UPDATE_LOCATION is exactly "1", a stored country is kept. Failures are logged
// and leave the stored country unchanged.
void getOrCreateUserLocation(const ProxySettings& proxy);

// One request to the service. Returns 0 with the answer in `out`, the transport library's error
// code, or sys::emptyAnswer. The HTTP status is ignored.
int getUserLocation(sys::DataBuff& out, const ProxySettings& proxy);

} // namespace stats
