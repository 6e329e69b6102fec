#include "ui/common/stat/text_template.h"

#include <algorithm>
#include <array>

namespace stats {
namespace {

constexpr std::string_view nameBytes =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_";

constexpr std::array<bool, 256> makeNameByteTable()
{
    std::array<bool, 256> table{};
    for (const char byte : nameBytes)
        table[static_cast<unsigned char>(byte)] = true;
    return table;
}

constexpr std::array<bool, 256> isNameByte = makeNameByteTable();

std::size_t endOfName(std::string_view text, std::size_t position)
{
    while (position < text.size() && isNameByte[static_cast<unsigned char>(text[position])])
        ++position;
    return position;
}

} // namespace

TextTemplate::TextTemplate(std::string_view templateText) : text(templateText)
{
    placeholders.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '{')));
    std::size_t literalStart = 0;
    std::size_t brace = text.find('{');
    while (brace != std::string::npos) {
        const std::size_t nameStart = brace + 1;
        const std::size_t nameEnd = endOfName(text, nameStart);
        const bool isNamed = nameEnd > nameStart && nameEnd < text.size() && text[nameEnd] == '}';
        if (isNamed) {
            placeholders.push_back(
                {{literalStart, brace - literalStart}, {nameStart, nameEnd - nameStart}});
            literalStart = nameEnd + 1;
        }
        brace = text.find('{', isNamed ? literalStart : nameEnd);
    }
    literalRest = {literalStart, text.size() - literalStart};
}

} // namespace stats
