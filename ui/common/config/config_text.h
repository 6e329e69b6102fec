#pragma once

// The text of a ".cfg" file: lines of a key, "=" and a value. Nothing is trimmed, quoted or
// escaped, and bytes are kept unchanged. Pure functions; any thread.

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

// One line, ended by a line feed, per entry with a value; an empty value marks a deleted entry,
// which is left out.
std::string serialiseConfig(const ConfigValues& values);

// What one process has changed since it last read or wrote the file, in ascending order of keys.
struct ConfigChanges
{
    std::vector<std::pair<std::string, std::string>> toWrite;
    std::vector<std::string> toDrop;
};

// Looks up each changed key: with its current value if there is one, else as a key to drop.
ConfigChanges collectChanges(const ConfigValues& values, const std::set<std::string>& changedKeys);

// Applies the changes to `values`.
void applyChanges(const ConfigChanges& changes, ConfigValues& values);

} // namespace fs
