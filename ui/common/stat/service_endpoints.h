#pragma once

// The addresses of the suite's services. Hosts are chosen at build time (cmake/services.cmake).
namespace stats {

// Receives usage events as an HTTPS form POST.
extern const char* const eventEndpoint;
// Answers an HTTPS GET with the country that the request comes from.
extern const char* const countryEndpoint;

} // namespace stats
