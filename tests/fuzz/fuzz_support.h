#pragma once

// Helpers of the fuzz targets: a check that ends the process, and fields of an input.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

// Aborts when the condition is false; the fuzzer and CTest report that as a failure.
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

// Separates the fields of an input: one byte, which a fuzzer inserts easily and no UTF-8 text
// holds.
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
