// Replaces the name service of the program that it is linked into: it never answers for
// hangs.invalid, and knows no other name.

#include <cstring>
#include <netdb.h>
#include <unistd.h>

extern "C" int getaddrinfo(const char* name, const char*, const addrinfo*, addrinfo**)
{
    while (std::strcmp(name, "hangs.invalid") == 0)
        pause();
    return EAI_NONAME;
}
