#pragma once

// Stands in for the HTTP library: tests decide what each request is answered with.

#include "support/netpull/netpull.h"

#include <functional>
#include <vector>

namespace scripted {

using Server = std::function<netpull::Response(const netpull::Request&)>;

// Installs the server for all following requests, on whatever thread they run, and forgets the
// requests of before.
void setServer(Server server);

// Answers the requests in order; a request beyond the last answer fails the test.
void answerInOrder(std::vector<netpull::Response> answers);

std::vector<netpull::Request> requests();

} // namespace scripted
