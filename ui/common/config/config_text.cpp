#include "ui/common/config/config_text.h"

#include "ui/common/config/config_line.h"

#include <algorithm>
#include <cstddef>

namespace fs {

namespace {

bool keyLess(const ConfigLine& left, const ConfigLine& right)
{
    return left.key < right.key;
}

// Lines are put in order in batches of this size: enough for any real file in one go, and memory
// stays bounded for a file that is nothing but lines.
constexpr std::size_t batchSize = 1U << 17;

// `storage` holds the result when there was something to remove.
std::string_view withoutCarriageReturns(std::string_view text, std::string& storage)
{
    std::size_t found = text.find('\r');
    if (found == std::string_view::npos)
        return text;
    storage.reserve(text.size() - 1);
    while (found != std::string_view::npos) {
        storage.append(text.substr(0, found));
        text.remove_prefix(found + 1);
        found = text.find('\r');
    }
    storage.append(text);
    return storage;
}

// Files are written in the order of their keys, so that usually every pair goes right behind the
// one before it. Returns the text from the first line on that does not.
std::string_view insertWhileAscending(std::string_view text, ConfigValues& values)
{
    auto next = values.end();
    const std::string* last = nullptr;
    ConfigLine line;
    for (std::string_view rest = text; !text.empty(); text = rest) {
        if (!takeConfigLine(rest, line))
            continue;
        if (last == nullptr)
            next = values.lower_bound(std::string(line.key));
        else if (line.key <= *last)
            return text;
        const auto inserted = values.try_emplace(next, std::string(line.key), line.value);
        last = &inserted->first;
        next = std::next(inserted);
    }
    return text;
}

// Sorting the lines of any other file costs less than finding each one's place in the map. The
// sort is stable: the first line of a repeated key stays first.
void insertSorted(std::vector<ConfigLine>& lines, ConfigValues& values)
{
    if (lines.empty())
        return;
    std::stable_sort(lines.begin(), lines.end(), keyLess);
    auto next = values.lower_bound(std::string(lines.front().key));
    for (const ConfigLine& line : lines)
        next = std::next(values.try_emplace(next, std::string(line.key), line.value));
    lines.clear();
}

} // namespace

void parseConfigText(std::string_view text, ConfigValues& values)
{
    // Trailing NULs go first: one that stands before a final carriage return is content.
    text = text.substr(0, text.find_last_not_of('\0') + 1);
    std::string storage;
    text = withoutCarriageReturns(text, storage);

    text = insertWhileAscending(text, values);
    std::vector<ConfigLine> lines;
    ConfigLine line;
    while (!text.empty()) {
        if (!takeConfigLine(text, line))
            continue;
        if (lines.size() == batchSize)
            insertSorted(lines, values);
        lines.push_back(line);
    }
    insertSorted(lines, values);
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
