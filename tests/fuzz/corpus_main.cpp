// Runs a fuzz entry point without a fuzzer: over every file of the folders named on the command
// line, and over a fixed number of changed copies of each, always the same ones.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int changedCopies = 2000;
constexpr std::size_t largestInput = 70000;

Bytes changed(Bytes bytes, std::mt19937& random)
{
    const auto below = [&](std::size_t bound) { return random() % bound; };
    switch (below(4)) {
    case 0:
        bytes.resize(below(largestInput), static_cast<std::uint8_t>(random()));
        break;
    case 1:
        bytes.resize(below(bytes.size() + 1));
        break;
    case 2: {
        Bytes doubled = bytes;
        doubled.resize(bytes.size() / 2);
        doubled.insert(doubled.end(), bytes.begin(), bytes.end());
        bytes = std::move(doubled);
        break;
    }
    default:
        break;
    }
    for (std::size_t i = below(8); i > 0 && !bytes.empty(); --i)
        bytes[below(bytes.size())] = static_cast<std::uint8_t>(random());
    return bytes;
}

} // namespace

int main(int argc, char** argv)
{
    int inputs = 0;
    std::mt19937 random(20260101);
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const Bytes bytes{std::istreambuf_iterator<char>(file), {}};
            LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
            ++inputs;
            for (int copy = 0; copy < changedCopies; ++copy, ++inputs) {
                const Bytes input = changed(bytes, random);
                LLVMFuzzerTestOneInput(input.data(), input.size());
            }
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
