// stack_smasher [LENGTH]: writes LENGTH bytes (default 8) into an array of 8, and ends with 0.
#include <cstdlib>

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
    return filled(argc > 1 ? std::atoi(argv[1]) : 8) == 'x' ? 0 : 1;
}
