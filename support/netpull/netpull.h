#pragma once

// One HTTP or HTTPS request, answered or given up within its time-out.
//
// Servers are verified against the system's certificate store. Redirects are not followed: the
// caller gets the 3xx answer, and a form is never sent on to another address. Nothing is added to a
// request beyond what HTTP requires: no agent name, no cookies, and no proxy from the environment.
//
// Threads: any. fetch blocks its caller until the answer is complete or has failed. Nothing throws
// except std::bad_alloc; running out of memory in the middle of an answer is a failed transfer
// (code 23).
//
// Time-outs also end a request whose name lookup hangs; the lookup's thread goes on until the
// system gives up. They do not limit what Windows fetches during a TLS handshake to complete a
// chain of certificates: a new root, or an intermediate that the server did not send. Revocation
// lists are not fetched.

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace netpull {

// Longer answers are refused with transport code 63. The suite's services answer in a few bytes.
constexpr std::size_t answerLimit = std::size_t{1024} * 1024;

struct Proxy
{
    std::string address; // host name or address of an HTTP proxy; empty: no proxy
    int port = 80;       // 1 to 65535
    std::string user;    // sent as Basic credentials with the first request, unless both are empty
    std::string password;
};

enum class Method { get, post };

struct Request
{
    std::string url; // http:// or https://
    Method method = Method::get;
    std::string postData;             // sent unchanged with Method::post, else ignored
    std::vector<std::string> headers; // "Name: value" each
    Proxy proxy;

    bool verifyServer = true; // refuse a certificate that is not trusted or is for another host
    int httpVersion = 1;      // major version of HTTP to speak; only 1 is known
    int longestSeconds = 15;  // no request lasts longer, whatever timeoutSeconds says
    int connectSeconds = 10;  // of which at most this long for name, connection and handshake
    int timeoutSeconds = 10;  // the whole transfer, from the name lookup to the last byte
};

struct Response
{
    int transportCode = 0; // 0, or libcurl's error code: the answer is missing or incomplete
    int httpStatus = 0;    // 0 when there was no answer
    std::string body;      // without the transfer encoding; what had arrived, after a failure
};

// Prepares the process for requests. Harmless when repeated; fetch calls it too.
void init();

Response fetch(const Request& request);

// Makes `replacement` answer all further requests instead of the network, on the thread that calls
// fetch; null brings the network back. For tests and measurements.
using Fetch = std::function<Response(const Request&)>;
void setFetch(Fetch replacement);

} // namespace netpull
