#pragma once

namespace uninstall {

// The whole program, from the application object to its exit code. `argv` ends with a null pointer,
// which alone bounds the arguments that the window receives. No application object may exist.
int runProgram(int argc, char** argv);

} // namespace uninstall
