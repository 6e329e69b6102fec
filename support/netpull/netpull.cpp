#include "support/netpull/netpull.h"

#include "support/netpull/transfer.h"

#include <curl/curl.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <new>

namespace netpull {
namespace {

struct EasyHandleDeleter
{
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
using EasyHandle = std::unique_ptr<CURL, EasyHandleDeleter>;

struct HeaderListDeleter
{
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using HeaderList = std::unique_ptr<curl_slist, HeaderListDeleter>;

// Sets options on one handle and remembers the first refusal.
class Options
{
public:
    explicit Options(CURL* handle) : handle(handle) {}

    template <typename Value>
    void set(CURLoption option, Value value)
    {
        if (outcome == CURLE_OK)
            outcome = curl_easy_setopt(handle, option, value);
    }
    void set(CURLoption option, const std::string& text) { set(option, text.c_str()); }

    CURLcode result() const { return outcome; }

private:
    CURL* handle;
    CURLcode outcome = CURLE_OK;
};

struct Answer
{
    std::string body;
    bool tooLong = false;
};

std::size_t takeBody(char* data, std::size_t, std::size_t count, void* target)
{
    Answer& answer = *static_cast<Answer*>(target);
    if (count > answerLimit - answer.body.size()) {
        answer.tooLong = true;
        return 0;
    }
    try {
        answer.body.append(data, count);
    } catch (const std::bad_alloc&) {
        return 0; // an exception must not pass through libcurl's own functions
    }
    return count;
}

bool append(HeaderList& list, const std::string& header)
{
    curl_slist* extended = curl_slist_append(list.get(), header.c_str());
    if (extended == nullptr)
        return false;
    static_cast<void>(list.release());
    list.reset(extended);
    return true;
}

void setLimits(Options& options, const Request& request)
{
    options.set(CURLOPT_TIMEOUT, long{std::min(request.timeoutSeconds, request.longestSeconds)});
    options.set(CURLOPT_CONNECTTIMEOUT, long{request.connectSeconds});
    options.set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(answerLimit));
    // Signals for time-outs are not safe in a program with threads.
    options.set(CURLOPT_NOSIGNAL, 1L);
    // A name lookup cannot be cancelled. Without this option libcurl waits for its end, whatever
    // the time-outs; with it the lookup's thread ends by itself some time later.
    options.set(CURLOPT_QUICK_EXIT, 1L);
}

void setSecurity(Options& options, const Request& request)
{
    options.set(CURLOPT_PROTOCOLS_STR, "http,https");
    options.set(CURLOPT_FOLLOWLOCATION, 0L);
    options.set(CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2});
    options.set(CURLOPT_SSL_VERIFYPEER, request.verifyServer ? 1L : 0L);
    options.set(CURLOPT_SSL_VERIFYHOST, request.verifyServer ? 2L : 0L);
    // Windows would fetch revocation lists during the handshake, for up to 20 seconds that no
    // time-out limits. A best-effort check would not be safer: it accepts a certificate whose list
    // is withheld.
    options.set(CURLOPT_SSL_OPTIONS, long{CURLSSLOPT_NO_REVOKE});
}

void setProxy(Options& options, const Proxy& proxy)
{
    // Empty rather than unset, so that the variables http_proxy and no_proxy are ignored.
    options.set(CURLOPT_PROXY, proxy.address);
    options.set(CURLOPT_NOPROXY, "");
    if (proxy.address.empty())
        return;
    options.set(CURLOPT_PROXYTYPE, long{CURLPROXY_HTTP});
    options.set(CURLOPT_PROXYPORT, long{proxy.port});
    options.set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    if (proxy.user.empty() && proxy.password.empty())
        return;
    options.set(CURLOPT_PROXYAUTH, static_cast<long>(CURLAUTH_BASIC));
    options.set(CURLOPT_PROXYUSERNAME, proxy.user);
    options.set(CURLOPT_PROXYPASSWORD, proxy.password);
}

void setMessage(Options& options, const Request& request, HeaderList& headers)
{
    options.set(CURLOPT_URL, request.url);
    options.set(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
    bool complete = true;
    for (const std::string& header : request.headers)
        complete = complete && append(headers, header);
    if (request.method == Method::post) {
        options.set(CURLOPT_POST, 1L);
        options.set(CURLOPT_POSTFIELDS, request.postData.data());
        options.set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.postData.size()));
        // Sends a long form at once instead of waiting a second for "100 Continue".
        complete = complete && append(headers, "Expect:");
    }
    if (!complete)
        throw std::bad_alloc();
    options.set(CURLOPT_HTTPHEADER, headers.get());
}

bool isValid(const Request& request)
{
    const bool proxyPortIsValid =
        request.proxy.address.empty() || (request.proxy.port > 0 && request.proxy.port <= 65535);
    return proxyPortIsValid && request.httpVersion == 1 && request.timeoutSeconds > 0 &&
           request.longestSeconds > 0 && request.connectSeconds > 0;
}

} // namespace

void init()
{
    // Never undone: a post may still be under way while static objects are destroyed.
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

Response transfer(const Request& request)
{
    init();
    Response response;
    if (!isValid(request)) {
        response.transportCode = CURLE_BAD_FUNCTION_ARGUMENT;
        return response;
    }
    // Declared before the handle, which uses it until it is destroyed.
    HeaderList headers;
    const EasyHandle handle(curl_easy_init());
    if (!handle) {
        response.transportCode = CURLE_FAILED_INIT;
        return response;
    }

    Answer answer;
    Options options(handle.get());
    setMessage(options, request, headers);
    setProxy(options, request.proxy);
    setSecurity(options, request);
    setLimits(options, request);
    options.set(CURLOPT_WRITEFUNCTION, &takeBody);
    options.set(CURLOPT_WRITEDATA, static_cast<void*>(&answer));

    CURLcode outcome = options.result();
    if (outcome == CURLE_OK)
        outcome = curl_easy_perform(handle.get());
    if (answer.tooLong)
        outcome = CURLE_FILESIZE_EXCEEDED;

    long status = 0;
    curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &status);
    response.transportCode = static_cast<int>(outcome);
    response.httpStatus = static_cast<int>(status);
    response.body = std::move(answer.body);
    return response;
}

} // namespace netpull
