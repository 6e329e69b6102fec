// Replaces an uninstaller: records its command line under its own file name, in the form that
// records.nsh describes, and ends. Unlike an NSIS program it takes command lines of any length.
#include "tests/sample_suite/record_file.h"

int main()
{
    return sample_suite::recordCommandLine() && sample_suite::recordEnd() ? 0 : 1;
}
