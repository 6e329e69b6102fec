#include <benchmark/benchmark.h>

#include <malloc.h>

int main(int argc, char** argv)
{
    // Keep freed memory in the process. Otherwise one benchmark's large blocks decide how often the
    // others return memory to the system.
    constexpr int oneGibibyte = 1 << 30;
    mallopt(M_MMAP_THRESHOLD, oneGibibyte);
    mallopt(M_TRIM_THRESHOLD, oneGibibyte);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
