#include "ui/common/stat/template_params.h"

#include <algorithm>

namespace stats {
namespace {

// Cuts the text before its last "&". Event bodies rarely have one, and find() rules it out faster
// than rfind().
void removeLastPair(std::string& text)
{
    if (text.find('&') != std::string::npos)
        text.resize(text.rfind('&'));
}

} // namespace

const std::string* TemplateParams::find(std::string_view name) const
{
    for (const Entry& entry : entries) {
        if (entry.name == name)
            return &entry.value;
    }
    return nullptr;
}

void TemplateParams::set(const std::string& name, const std::string& value, bool overwrite)
{
    const auto place = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.name == name; });
    if (place == entries.end())
        entries.push_back({name, value});
    else if (overwrite)
        place->value = value;
}

void TemplateParams::set(const std::vector<std::pair<std::string, std::string>>& pairs,
                         bool overwrite)
{
    for (const auto& [name, value] : pairs)
        set(name, value, overwrite);
}

std::string TemplateParams::get(const std::string& name) const
{
    const std::string* const value = find(name);
    return value != nullptr ? *value : std::string();
}

TemplateParams::Expansion TemplateParams::expand(const TextTemplate& textTemplate,
                                                 bool dropUnknown) const
{
    Expansion result;
    std::string& text = result.text;
    text.reserve(2 * textTemplate.length());
    for (std::size_t index = 0; index < textTemplate.placeholderCount(); ++index) {
        text += textTemplate.literalBefore(index);
        const std::string* const value = find(textTemplate.name(index));
        if (value != nullptr) {
            text += *value;
        } else if (!dropUnknown) {
            ++result.unresolvedCount;
            removeLastPair(text);
        }
    }
    text += textTemplate.rest();
    return result;
}

TemplateParams::Expansion TemplateParams::expand(std::string_view templateText,
                                                 bool dropUnknown) const
{
    return expand(TextTemplate(templateText), dropUnknown);
}

} // namespace stats
