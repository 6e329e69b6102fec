#pragma once

namespace Keelbase {

// The level that the environment variable levelVariable sets; defaultLevel when it is missing or is
// not a decimal number, or is negative. Any thread, as long as none changes the environment.
int levelFromEnvironment() noexcept;

} // namespace Keelbase
