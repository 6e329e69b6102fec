#pragma once

#include "support/win32/unique_handle.h"

#include <windows.h>

namespace windows_tests {

// A job whose processes end when its handle is closed, at the latest with the calling process.
inline win32::KernelHandle endingJob()
{
    win32::KernelHandle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    return job;
}

} // namespace windows_tests
