#pragma once

// The text of a ".cfg" file: lines of a key, "=" and a value. Nothing is trimmed, quoted or
// escaped, and the bytes are kept as they are. Pure functions; any thread.

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fs {

// Ordered by the bytes of the keys.
using ConfigValues = std::map<std::string, std::string>;

// Adds the pairs of a file's whole content to `values`. Trailing NULs and every carriage return
// are left out, lines without "=" are skipped. The first line of a repeated key wins, and a key
// that `values` already holds keeps its value.
void parseConfigText(std::string_view text, ConfigValues& values);

// One line, ended by a line feed, per entry with a value; entries with an empty value are deleted
// ones and are left out.
std::string serialiseConfig(const ConfigValues& values);

// What one process changed since it last read or wrote the file, keys in ascending order.
struct ConfigChanges
{
    std::vector<std::pair<std::string, std::string>> toWrite;
    std::vector<std::string> toDrop;
};

// Looks up each changed key: with its current value if there is one, else as a key to drop.
ConfigChanges collectChanges(const ConfigValues& values, const std::set<std::string>& changedKeys);

// Lays the changes over `values`: inserts or replaces what is to write, erases what is to drop.
void applyChanges(const ConfigChanges& changes, ConfigValues& values);

} // namespace fs
