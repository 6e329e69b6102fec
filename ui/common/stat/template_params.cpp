#include "ui/common/stat/template_params.h"

#include <array>

namespace stats {
namespace {

constexpr std::array<bool, 256> makeNameBytes()
{
    std::array<bool, 256> isName{};
    for (unsigned char byte = '0'; byte <= '9'; ++byte)
        isName[byte] = true;
    for (unsigned char byte = 'A'; byte <= 'Z'; ++byte)
        isName[byte] = true;
    for (unsigned char byte = 'a'; byte <= 'z'; ++byte)
        isName[byte] = true;
    isName['-'] = true;
    isName['_'] = true;
    return isName;
}

constexpr std::array<bool, 256> nameBytes = makeNameBytes();

std::size_t endOfName(std::string_view text, std::size_t position)
{
    while (position < text.size() && nameBytes[static_cast<unsigned char>(text[position])])
        ++position;
    return position;
}

} // namespace

void TemplateParams::set(const std::string& name, const std::string& value, bool overwrite)
{
    if (overwrite)
        values.insert_or_assign(name, value);
    else
        values.emplace(name, value);
}

void TemplateParams::set(const std::vector<std::pair<std::string, std::string>>& pairs,
                         bool overwrite)
{
    for (const auto& [name, value] : pairs)
        set(name, value, overwrite);
}

std::string TemplateParams::get(const std::string& name) const
{
    const auto found = values.find(name);
    return found == values.end() ? std::string() : found->second;
}

TemplateParams::Expansion TemplateParams::expand(std::string_view templateText,
                                                 bool dropUnknown) const
{
    Expansion result;
    std::string& text = result.text;
    text.reserve(2 * templateText.size());

    std::size_t literalStart = 0;
    std::size_t scanFrom = 0;
    for (;;) {
        const std::size_t brace = templateText.find('{', scanFrom);
        if (brace == std::string_view::npos)
            break;
        const std::size_t nameStart = brace + 1;
        const std::size_t nameEnd = endOfName(templateText, nameStart);
        scanFrom = nameEnd;
        if (nameEnd == nameStart || nameEnd == templateText.size() || templateText[nameEnd] != '}')
            continue;

        text.append(templateText, literalStart, brace - literalStart);
        scanFrom = nameEnd + 1;
        literalStart = scanFrom;
        const auto found = values.find(templateText.substr(nameStart, nameEnd - nameStart));
        if (found != values.end()) {
            text.append(found->second);
        } else if (!dropUnknown) {
            ++result.unresolvedCount;
            const std::size_t lastPair = text.rfind('&');
            if (lastPair != std::string::npos)
                text.resize(lastPair);
        }
    }
    text.append(templateText, literalStart);
    return result;
}

} // namespace stats
