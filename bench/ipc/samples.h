#pragma once

#include <algorithm>
#include <vector>

#include <windows.h>

namespace ipcbench {

// Microseconds since an arbitrary moment.
inline double now()
{
    LARGE_INTEGER ticks = {};
    LARGE_INTEGER frequency = {};
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks.QuadPart) * 1e6 / static_cast<double>(frequency.QuadPart);
}

inline double median(std::vector<double> samples)
{
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

} // namespace ipcbench
