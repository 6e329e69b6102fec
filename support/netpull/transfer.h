#pragma once

#include "support/netpull/netpull.h"

namespace netpull {

// One request over the network: what fetch does unless it has been replaced.
Response transfer(const Request& request);

} // namespace netpull
