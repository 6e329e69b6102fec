#include "ui/common/stat/template_params.h"

#include <algorithm>

namespace stats {
namespace {

bool isNameByte(char byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           (byte >= '0' && byte <= '9') || byte == '-' || byte == '_';
}

// The name of the placeholder that opens with this brace; empty when it opens none.
std::string_view nameAfter(std::string_view text, std::size_t brace)
{
    const std::size_t start = brace + 1;
    std::size_t end = start;
    while (end < text.size() && isNameByte(text[end]))
        ++end;
    const bool isClosed = end < text.size() && text[end] == '}';
    return isClosed ? text.substr(start, end - start) : std::string_view();
}

void removeLastPair(std::string& text)
{
    text.resize(std::min(text.rfind('&'), text.size()));
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
    return found != values.end() ? found->second : std::string();
}

TemplateParams::Expansion TemplateParams::expand(std::string_view templateText,
                                                 bool dropUnknown) const
{
    Expansion result;
    std::size_t position = 0;
    for (;;) {
        const std::size_t brace = templateText.find('{', position);
        result.text += templateText.substr(position, brace - position);
        if (brace == std::string_view::npos)
            return result;
        const std::string_view name = nameAfter(templateText, brace);
        if (name.empty()) {
            result.text += '{';
            position = brace + 1;
            continue;
        }
        position = brace + name.size() + 2;
        const auto found = values.find(name);
        if (found != values.end()) {
            result.text += found->second;
        } else if (!dropUnknown) {
            ++result.unresolvedCount;
            removeLastPair(result.text);
        }
    }
}

} // namespace stats
