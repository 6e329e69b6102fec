// What the C++ library calls when nobody catches an exception. GCC's own function names the
// exception on a console, which this program does not have, and needs 47 KB to read the name.
#include <cstdlib>

namespace __gnu_cxx {

void __verbose_terminate_handler()
{
    std::abort();
}

} // namespace __gnu_cxx
