// Any bytes as the text of "global.cfg" and as the folder's name: compares the brand with a plain
// second implementation, and checks that only the first line of the key counts.

#include "tests/fuzz/fuzz_support.h"
#include "ui/common/config/brand.h"

namespace {

using fuzz::require;

constexpr const char* modeKey = "CompanyBrandMode";

bool isOneOf(char byte, std::string_view bytes)
{
    return fuzz::contains(bytes, std::string_view(&byte, 1));
}

std::string trimmedEnd(std::string text, std::string_view bytes)
{
    while (!text.empty() && isOneOf(text.back(), bytes))
        text.pop_back();
    return text;
}

// The brand, or nothing when no line decides.
std::string plainlyRead(std::string text)
{
    text += '\n';
    std::string line;
    for (const char byte : text) {
        if (byte != '\n') {
            line += byte;
            continue;
        }
        const std::string key = line.substr(0, line.find('='));
        if (key.size() < line.size() && trimmedEnd(key, " \t") == modeKey) {
            std::string value = trimmedEnd(line.substr(key.size() + 1), "\r \t");
            while (!value.empty() && isOneOf(value.front(), " \t"))
                value.erase(0, 1);
            return value == "1" ? "Corvane" : "Lumacraft";
        }
        line.clear();
    }
    return {};
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = fuzz::textOf(data, size);
    const std::string decided = plainlyRead(text);
    const std::string brand = fs::brandFromGlobalConfig(text);
    require(brand == (decided.empty() ? "Lumacraft" : decided), "the deciding line sets the brand");

    for (const char* added : {"CompanyBrandMode=0", "CompanyBrandMode=1"}) {
        const std::string addedBrand = added[17] == '1' ? "Corvane" : "Lumacraft";
        require(fs::brandFromGlobalConfig(text + "\n" + added) ==
                    (decided.empty() ? addedBrand : decided),
                "a later line decides only when no earlier one does");
        require(fs::brandFromGlobalConfig(std::string(added) + "\n" + text) == addedBrand,
                "the first line of the key decides");
    }
    const std::string asValue = modeKey + ("=" + text);
    require(fs::brandFromGlobalConfig(asValue) == plainlyRead(asValue), "any value is read right");

    const auto fromName = fs::brandFromFolderName(text);
    require(fromName.has_value() == (text == "Corvane" || text == "Lumacraft"),
            "a folder's name decides only when it is a brand");
    require(!fromName || *fromName == text, "the brand is the folder's name");
    return 0;
}
