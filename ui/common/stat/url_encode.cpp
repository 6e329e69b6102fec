#include "ui/common/stat/url_encode.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace stats {
namespace {

constexpr std::string_view encodedBytes = " !#$%&'()*+,-./:;=?@[]{|}";
static_assert(encodedBytes.size() == 25);

// What one byte becomes: the first `length` of `bytes`.
struct Replacement
{
    char bytes[3];
    unsigned char length;
};

constexpr std::array<Replacement, 256> makeReplacements()
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::array<Replacement, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = {{static_cast<char>(byte), 0, 0}, 1};
    for (const char character : encodedBytes) {
        const auto byte = static_cast<unsigned char>(character);
        table[byte] = {{'%', digits[byte >> 4U], digits[byte & 15U]}, 3};
    }
    return table;
}

constexpr std::array<Replacement, 256> replacements = makeReplacements();

} // namespace

std::string urlEncode(const std::string& text)
{
    // Room for the worst case, so that every byte can be written as three without a branch.
    std::string encoded(3 * text.size(), '\0');
    char* out = encoded.data();
    for (const char character : text) {
        const Replacement& replacement = replacements[static_cast<unsigned char>(character)];
        std::memcpy(out, replacement.bytes, sizeof replacement.bytes);
        out += replacement.length;
    }
    encoded.resize(static_cast<std::size_t>(out - encoded.data()));
    return encoded;
}

} // namespace stats
