#pragma once

// What every fuzz target needs: a check that ends the process, and a way to take one input apart.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

// Ends the process, which the fuzzer and the corpus runner both take for a finding.
inline void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

inline std::string textOf(const std::uint8_t* data, std::size_t size)
{
    return {data, data + size};
}

// Inputs with several texts keep them apart by this byte: it is easy to see in a file, easy to
// hit for a fuzzer, and part of no UTF-8 text.
constexpr char separator = '\xff';

inline std::vector<std::string> fieldsOf(std::string_view input)
{
    std::vector<std::string> fields;
    for (;;) {
        const std::size_t end = input.find(separator);
        fields.emplace_back(input.substr(0, end));
        if (end == std::string_view::npos)
            return fields;
        input.remove_prefix(end + 1);
    }
}

inline std::string fieldAt(const std::vector<std::string>& fields, std::size_t index)
{
    return index < fields.size() ? fields[index] : std::string();
}

inline bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

inline bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

} // namespace fuzz

// The entry point that each target defines.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
