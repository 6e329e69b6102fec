// Replaces the name service of the program that it is linked into by one that never answers.

#include <netdb.h>
#include <unistd.h>

extern "C" int getaddrinfo(const char*, const char*, const addrinfo*, addrinfo**)
{
    for (;;)
        pause();
}
