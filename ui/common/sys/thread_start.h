#pragma once

// The call that begins a thread, replaceable. Programs use thread.h.

#include <process.h>

namespace win32 {

using BeginThread = decltype(&_beginthreadex);

// What CBaseThread::start() calls from now on; null brings the runtime library's own call back.
// While no thread of this kind is being started.
void setBeginThread(BeginThread begin);

} // namespace win32
