#include <benchmark/benchmark.h>

#include <malloc.h>

int main(int argc, char** argv)
{
    // Freed memory stays with the process. Otherwise whatever frees a large block last decides how
    // often all the others hand their memory back to the system and fetch it again.
    constexpr int oneGibibyte = 1 << 30;
    mallopt(M_MMAP_THRESHOLD, oneGibibyte);
    mallopt(M_TRIM_THRESHOLD, oneGibibyte);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
