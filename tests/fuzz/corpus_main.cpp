// Runs a fuzz target without a fuzzer over the files and folders named on the command line, and
// over a fixed number of changed copies, which are the same in every run.

#include "tests/fuzz/fuzz_support.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t changedCopies = 20000;
constexpr std::size_t largestGrowth = 2000;

std::vector<Bytes> readCorpus(int count, char** paths)
{
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < count; ++i) {
        const std::filesystem::path path = paths[i];
        if (!std::filesystem::is_directory(path)) {
            files.push_back(path);
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(path))
            files.push_back(entry.path());
    }
    // Folders list their files in any order, which would change the copies.
    std::sort(files.begin(), files.end());

    std::vector<Bytes> corpus;
    for (const std::filesystem::path& path : files) {
        std::ifstream file(path, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        if (!file.is_open()) {
            std::fprintf(stderr, "%s cannot be read\n", path.c_str());
            std::exit(1);
        }
    }
    return corpus;
}

Bytes changed(Bytes bytes, const Bytes& other, std::mt19937& random)
{
    const auto below = [&](std::size_t bound) { return random() % bound; };
    switch (below(4)) {
    case 0:
        bytes.resize(below(largestGrowth), static_cast<std::uint8_t>(random()));
        break;
    case 1:
        bytes.resize(below(bytes.size() + 1));
        break;
    case 2:
        bytes.resize(below(bytes.size() + 1));
        bytes.insert(bytes.end(), other.begin(), other.end());
        break;
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
    const std::vector<Bytes> corpus = readCorpus(argc - 1, argv + 1);
    if (corpus.empty()) {
        std::fprintf(stderr, "no inputs\n");
        return 1;
    }
    for (const Bytes& input : corpus)
        LLVMFuzzerTestOneInput(input.data(), input.size());

    std::mt19937 random(20260101);
    for (std::size_t copy = 0; copy < changedCopies; ++copy) {
        const Bytes input =
            changed(corpus[copy % corpus.size()], corpus[random() % corpus.size()], random);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%zu files and %zu changed copies\n", corpus.size(), changedCopies);
    return 0;
}
