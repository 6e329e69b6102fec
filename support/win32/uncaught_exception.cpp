// What the C++ library calls when nobody catches an exception. GCC's own function names the
// exception on a console, which this program does not have, and needs 47 KB to read the name.
#include <windows.h>

namespace __gnu_cxx {

void __verbose_terminate_handler()
{
    // With the code of abort(), which would open a message box first.
    TerminateProcess(GetCurrentProcess(), 3);
    __builtin_trap();
}

} // namespace __gnu_cxx
