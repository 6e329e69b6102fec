// An uninstaller that runs longer than the program waits, and records its start and its end.
#include "tests/sample_suite/record_file.h"

namespace {

constexpr DWORD longerThanTheWaitMs = 3500;

} // namespace

int main()
{
    if (!sample_suite::recordCommandLine())
        return 1;
    Sleep(longerThanTheWaitMs);
    return sample_suite::recordEnd() ? 0 : 1;
}
