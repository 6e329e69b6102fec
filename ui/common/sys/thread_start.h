#pragma once

// The call that begins a thread, replaceable for tests. Programs use thread.h.

#include <process.h>

namespace win32 {

using BeginThread = decltype(&_beginthreadex);

// Sets what CBaseThread::start() calls; null brings the runtime library's function back. Not while
// a thread is being started.
void setBeginThread(BeginThread begin);

} // namespace win32
