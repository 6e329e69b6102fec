#pragma once

namespace sys {

// Result codes of the suite's file and network helpers. 0 is success; codes not listed here are
// error numbers of the platform call that failed, passed through unchanged.
constexpr int success = 0;
constexpr int noSuchFile = 100002;
constexpr int readOrWriteFailed = 100004;
constexpr int openedWithoutStream = 100007;
constexpr int emptyAnswer = 100009;

} // namespace sys
