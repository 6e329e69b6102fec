#pragma once

namespace Keelbase {

// The level that a value of levelVariable means; defaultLevel for null and for anything but a
// decimal number that is not negative. Any thread.
int levelFromText(const char* text) noexcept;

} // namespace Keelbase
