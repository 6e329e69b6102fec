#pragma once

// The addresses of the suite's services. cmake/services.cmake sets the hosts.
namespace stats {

// Receives usage events as an HTTPS form POST.
extern const char* const eventEndpoint;
// Answers an HTTPS GET with the country that the request comes from.
extern const char* const countryEndpoint;

} // namespace stats
