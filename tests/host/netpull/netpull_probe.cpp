// Sends one request, for the tests with local servers:
//
//   netpull_probe METHOD URL [name=value ...]
//
// Names are data, dataSize (a text of "x"), dataZeros (so many zero bytes), header, proxy,
// proxyPort, proxyUser, proxyPassword, timeout, connect, longest, httpVersion, verify (0 accepts
// any server), urlSize (the address grows to it), largestBlock (operator new fails for larger
// blocks), headersLeft and handlesLeft (libcurl has memory for so many). Prints transport code,
// HTTP status, milliseconds and size of the body, then the body itself. Ends with 3 when there is
// no memory for the request.

#include "support/netpull/netpull.h"

#include <curl/curl.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <iostream>
#include <new>
#include <string>

namespace {

std::atomic<std::size_t> largestBlock{SIZE_MAX};
int headersLeft = 1000;
int handlesLeft = 1000;

bool apply(const std::string& name, const std::string& value, netpull::Request& request)
{
    if (name == "data")
        request.postData = value;
    else if (name == "dataSize")
        request.postData.assign(std::stoul(value), 'x');
    else if (name == "dataZeros")
        request.postData.assign(std::stoul(value), '\0');
    else if (name == "header")
        request.headers.push_back(value);
    else if (name == "proxy")
        request.proxy.address = value;
    else if (name == "proxyPort")
        request.proxy.port = std::stoi(value);
    else if (name == "proxyUser")
        request.proxy.user = value;
    else if (name == "proxyPassword")
        request.proxy.password = value;
    else if (name == "timeout")
        request.timeoutSeconds = std::stoi(value);
    else if (name == "connect")
        request.connectSeconds = std::stoi(value);
    else if (name == "longest")
        request.longestSeconds = std::stoi(value);
    else if (name == "httpVersion")
        request.httpVersion = std::stoi(value);
    else if (name == "verify")
        request.verifyServer = value != "0";
    else if (name == "urlSize")
        request.url.resize(std::stoul(value), 'x');
    else if (name == "headersLeft")
        headersLeft = std::stoi(value);
    else if (name == "handlesLeft")
        handlesLeft = std::stoi(value);
    else if (name == "largestBlock")
        largestBlock = std::stoul(value);
    else
        return false;
    return true;
}

} // namespace

void* operator new(std::size_t size)
{
    void* const block = size <= largestBlock ? std::malloc(size) : nullptr;
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

// These two stand before libcurl's own.
extern "C" curl_slist* curl_slist_append(curl_slist* list, const char* data)
{
    static const auto next =
        reinterpret_cast<decltype(&curl_slist_append)>(dlsym(RTLD_NEXT, "curl_slist_append"));
    return --headersLeft < 0 ? nullptr : next(list, data);
}

extern "C" CURL* curl_easy_init()
{
    static const auto next =
        reinterpret_cast<decltype(&curl_easy_init)>(dlsym(RTLD_NEXT, "curl_easy_init"));
    return --handlesLeft < 0 ? nullptr : next();
}

int main(int argc, char** argv)
try {
    if (argc < 3)
        return 2;
    netpull::Request request;
    request.method = std::string(argv[1]) == "POST" ? netpull::Method::post : netpull::Method::get;
    request.url = argv[2];
    for (int index = 3; index < argc; ++index) {
        const std::string argument = argv[index];
        const std::size_t equals = argument.find('=');
        if (equals == std::string::npos ||
            !apply(argument.substr(0, equals), argument.substr(equals + 1), request))
            return 2;
    }

    const auto begun = std::chrono::steady_clock::now();
    const netpull::Response response = netpull::fetch(request);
    const auto spent = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - begun);
    std::cout << response.transportCode << ' ' << response.httpStatus << ' ' << spent.count() << ' '
              << response.body.size() << '\n'
              << response.body << std::flush;
    return 0;
} catch (const std::bad_alloc&) {
    return 3;
}
