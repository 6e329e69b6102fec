#pragma once

// A fake of the HTTP library: tests choose the answer to each request.

#include "support/netpull/netpull.h"

#include <functional>
#include <vector>

namespace scripted {

using Server = std::function<netpull::Response(const netpull::Request&)>;

// Installs the server for all following requests, on any thread, and forgets earlier requests.
void setServer(Server server);

// Answers the requests in order; a request beyond the last answer fails the test.
void answerInOrder(std::vector<netpull::Response> answers);

std::vector<netpull::Request> requests();

} // namespace scripted
