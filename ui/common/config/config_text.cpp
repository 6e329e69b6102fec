#include "ui/common/config/config_text.h"

#include "ui/common/config/config_line.h"

#include <algorithm>
#include <iterator>

namespace fs {

void parseConfigText(std::string_view text, ConfigValues& values)
{
    // Before carriage returns are removed: a NUL in front of a final one is content.
    text = text.substr(0, text.find_last_not_of('\0') + 1);
    std::string storage;
    if (text.find('\r') != std::string_view::npos) {
        std::remove_copy(text.begin(), text.end(), std::back_inserter(storage), '\r');
        text = storage;
    }
    // Files are written in key order, so the end is usually the right hint.
    ConfigLine line;
    while (!text.empty()) {
        if (takeConfigLine(text, line))
            values.try_emplace(values.end(), std::string(line.key), line.value);
    }
}

std::string serialiseConfig(const ConfigValues& values)
{
    std::size_t size = 0;
    for (const auto& [key, value] : values)
        size += key.size() + value.size() + 2;

    std::string text;
    text.reserve(size);
    for (const auto& [key, value] : values) {
        if (value.empty())
            continue;
        text += key;
        text += '=';
        text += value;
        text += '\n';
    }
    return text;
}

ConfigChanges collectChanges(const ConfigValues& values, const std::set<std::string>& changedKeys)
{
    ConfigChanges changes;
    for (const std::string& key : changedKeys) {
        const auto found = values.find(key);
        if (found != values.end())
            changes.toWrite.emplace_back(*found);
        else
            changes.toDrop.push_back(key);
    }
    return changes;
}

void applyChanges(const ConfigChanges& changes, ConfigValues& values)
{
    for (const auto& [key, value] : changes.toWrite)
        values.insert_or_assign(key, value);
    for (const std::string& key : changes.toDrop)
        values.erase(key);
}

} // namespace fs
