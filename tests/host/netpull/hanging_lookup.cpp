// A name service that never answers: takes the place of the system's in the program that this is
// linked into.

#include <netdb.h>
#include <unistd.h>

extern "C" int getaddrinfo(const char*, const char*, const addrinfo*, addrinfo**)
{
    for (;;)
        pause();
}
