// stack_smasher LENGTH: writes LENGTH bytes into an array of 8, and ends with 0. Without LENGTH
// ends with the lower half of the guard value.
#include <cstdint>
#include <cstdlib>

extern "C" std::uintptr_t __stack_chk_guard;

namespace {

[[gnu::noinline]] void fill(volatile char* target, int length)
{
    for (int i = 0; i < length; ++i)
        target[i] = 'x';
}

[[gnu::noinline]] char filled(int length)
{
    volatile char text[8] = {};
    fill(text, length);
    return text[0];
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return static_cast<int>(__stack_chk_guard);
    return filled(std::atoi(argv[1])) == 'x' ? 0 : 1;
}
