#include "ui/common/stat/template_params.h"

#include <algorithm>

namespace stats {
namespace {

// Takes an address back to before its last pair. Looking for any "&" first spares an event body,
// which has none, the slow search from behind.
void removeLastPair(std::string& text)
{
    if (text.find('&') != std::string::npos)
        text.resize(text.rfind('&'));
}

} // namespace

const TemplateParams::Entry* TemplateParams::find(std::string_view name) const
{
    // For so few names, most of them of different length, faster than a binary search.
    for (const Entry& entry : entries) {
        if (entry.name == name)
            return &entry;
    }
    return nullptr;
}

void TemplateParams::set(const std::string& name, const std::string& value, bool overwrite)
{
    const auto place = std::lower_bound(
        entries.begin(), entries.end(), name,
        [](const Entry& entry, const std::string& key) { return entry.name < key; });
    if (place == entries.end() || place->name != name)
        entries.insert(place, {name, value});
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
    const Entry* const entry = find(name);
    return entry != nullptr ? entry->value : std::string();
}

TemplateParams::Expansion TemplateParams::expand(const TextTemplate& textTemplate,
                                                 bool dropUnknown) const
{
    Expansion result;
    std::string& text = result.text;
    text.reserve(2 * textTemplate.length());
    for (std::size_t index = 0; index < textTemplate.placeholderCount(); ++index) {
        text += textTemplate.literalBefore(index);
        const Entry* const entry = find(textTemplate.name(index));
        if (entry != nullptr) {
            text += entry->value;
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
