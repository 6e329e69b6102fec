// Stands in for any program that a registered uninstall command may name: it records the command
// line that it received, in the form that records.nsh describes, under its own file name, and ends.
// Unlike an NSIS program it takes command lines of any length.
#include "tests/sample_suite/record_file.h"

int main()
{
    return sample_suite::recordCommandLine() && sample_suite::recordEnd() ? 0 : 1;
}
