// Any bytes as the text of a ".cfg" file: compares the parser with a plain second one, writes and
// rereads the result, and merges changes into it.
//
// Input: the file's text. Its fields between separators are also used as: pairs in this process's
// memory, pairs that it set, keys that it marked as changed, and the file as another process left
// it.

#include "tests/fuzz/config_reference.h"
#include "tests/fuzz/fuzz_support.h"
#include "ui/common/config/config_text.h"

#include <set>

namespace {

using fuzz::fieldAt;
using fuzz::Pairs;
using fuzz::require;

Pairs parsed(const std::string& text)
{
    Pairs pairs;
    fs::parseConfigText(text, pairs);
    return pairs;
}

void checkText(const std::string& text)
{
    const Pairs pairs = parsed(text);
    require(pairs == fuzz::plainlyParsed(text), "the parser follows the reading rules");

    const std::string written = fs::serialiseConfig(pairs);
    require(written.empty() || written.back() == '\n', "the last line is ended");
    require(parsed(written) == fuzz::withoutEmpty(pairs), "what is written is read back");
    require(fs::serialiseConfig(parsed(written)) == written, "rewriting changes nothing");
}

void checkOrderOfLoading(const std::string& first, const std::string& second)
{
    Pairs expected = fuzz::plainlyParsed(first);
    const Pairs later = fuzz::plainlyParsed(second);
    expected.insert(later.begin(), later.end());

    Pairs pairs = parsed(first);
    fs::parseConfigText(second, pairs);
    require(pairs == expected, "a key in memory keeps its value");
}

void checkMerge(const std::vector<std::string>& fields)
{
    Pairs memory = fuzz::plainlyParsed(fieldAt(fields, 0));
    std::set<std::string> changedKeys;
    for (const auto& [key, value] : fuzz::plainlyParsed(fieldAt(fields, 1))) {
        memory[key] = value;
        changedKeys.insert(key);
    }
    for (const auto& [key, value] : fuzz::plainlyParsed(fieldAt(fields, 2)))
        changedKeys.insert(key);
    const Pairs onDisk = fuzz::plainlyParsed(fieldAt(fields, 3));

    Pairs expected;
    for (const auto& pair : onDisk) {
        if (changedKeys.count(pair.first) == 0)
            expected.insert(pair);
    }
    for (const auto& pair : memory) {
        if (changedKeys.count(pair.first) != 0)
            expected.insert(pair);
    }

    const fs::ConfigChanges changes = fs::collectChanges(memory, changedKeys);
    require(changes.toWrite.size() + changes.toDrop.size() == changedKeys.size(),
            "each changed key is written or dropped");
    Pairs merged = onDisk;
    fs::applyChanges(changes, merged);
    require(merged == expected, "only changed keys differ from the file");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input = fuzz::textOf(data, size);
    checkText(input);
    const std::vector<std::string> fields = fuzz::fieldsOf(input);
    checkOrderOfLoading(fieldAt(fields, 0), fieldAt(fields, 1));
    checkMerge(fields);
    return 0;
}
