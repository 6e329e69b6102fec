#pragma once

// The clock of the measurements under Windows, and statistics of its readings.

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include <windows.h>

namespace bench {

// Microseconds since an arbitrary moment.
inline double now()
{
    LARGE_INTEGER ticks = {};
    LARGE_INTEGER frequency = {};
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks.QuadPart) * 1e6 / static_cast<double>(frequency.QuadPart);
}

// The sample that `share` (0 to 1) of all samples lie below. There must be at least one.
inline double quantile(std::vector<double> samples, double share)
{
    const auto last = static_cast<double>(samples.size() - 1);
    const auto wanted = samples.begin() + static_cast<std::ptrdiff_t>(last * share + 0.5);
    std::nth_element(samples.begin(), wanted, samples.end());
    return *wanted;
}

inline double median(const std::vector<double>& samples)
{
    return quantile(samples, 0.5);
}

// "1.040 (goal 1.15 met)": `ratio` is to be at most `goal`; only the ratio when `goal` is 0.
inline std::string verdict(double ratio, double goal)
{
    char text[64] = {};
    if (goal > 0)
        std::snprintf(text, sizeof(text), "%.3f (goal %.2f %s)", ratio, goal,
                      ratio <= goal ? "met" : "missed");
    else
        std::snprintf(text, sizeof(text), "%.3f", ratio);
    return text;
}

} // namespace bench
