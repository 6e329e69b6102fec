// Any sequence of operations on two settings objects that share one file, as two processes do;
// compares each step with a model. The file is in memory; it can be missing and can refuse reads
// and writes.
//
// Input: steps between separators. A step's first letter selects the operation (lower case for the
// first object, upper case for the second one); the rest is the operation's text.

#include "tests/fuzz/config_reference.h"
#include "tests/fuzz/fuzz_support.h"
#include "ui/common/config/config.h"
#include "ui/common/sys/replaceable.h"
#include "ui/common/sys/result_codes.h"

#include <optional>
#include <set>

namespace {

using fuzz::Pairs;
using fuzz::require;

struct MemoryFile
{
    std::optional<std::string> content;
    bool refusesReading = false;
    bool refusesWriting = false;
};

MemoryFile file;

bool exists(const std::wstring& path)
{
    return !path.empty() && file.content.has_value();
}

int read(const std::wstring&, std::string& content)
{
    if (!file.content || file.refusesReading)
        return sys::readOrWriteFailed;
    content = *file.content;
    return sys::success;
}

int write(const std::wstring&, const std::string& text)
{
    if (file.refusesWriting)
        return sys::readOrWriteFailed;
    file.content = text.c_str(); // up to the first NUL, as on disk
    return sys::success;
}

std::string plainlyWritten(const Pairs& pairs)
{
    std::string text;
    for (const auto& [key, value] : fuzz::withoutEmpty(pairs))
        text.append(key).append("=").append(value).append("\n");
    return text;
}

// A plain model of one settings object.
class Model
{
public:
    void forget(bool nowHasPath)
    {
        values.clear();
        changed.clear();
        hasPath = nowHasPath;
    }

    void set(const std::string& key, const std::string& value)
    {
        values[key] = value;
        changed.insert(key);
        modified = true;
    }

    int read(bool discard)
    {
        if (!hasPath || !file.content)
            return sys::noSuchFile;
        if (file.refusesReading)
            return sys::readOrWriteFailed;
        Pairs fromFile = fuzz::plainlyParsed(*file.content);
        if (discard)
            values.clear();
        values.insert(fromFile.begin(), fromFile.end());
        changed.clear();
        modified = false;
        return sys::success;
    }

    // `written` is what the file must hold afterwards.
    int save(std::optional<std::string>& written)
    {
        if (!hasPath)
            return sys::noSuchFile;
        if (changed.empty()) {
            modified = false;
            return sys::success;
        }
        Pairs merged;
        if (file.content && !file.refusesReading)
            merged = fuzz::plainlyParsed(*file.content);
        for (const std::string& key : changed)
            merged[key] = values[key];
        values = merged;
        if (file.refusesWriting)
            return sys::readOrWriteFailed;
        written = plainlyWritten(values).c_str(); // up to the first NUL
        changed.clear();
        modified = false;
        return sys::success;
    }

    Pairs values;
    bool modified = false;

private:
    std::set<std::string> changed;
    bool hasPath = false;
};

struct Settings
{
    fs::CConfig config;
    Model model;
};

void checkValue(const Settings& settings, const std::string& key)
{
    const auto found = settings.model.values.find(key);
    const bool known = found != settings.model.values.end();
    require(settings.config.getValue(key, "else") == (known ? found->second : "else"),
            "getValue answers the value or the default");
    for (const bool defaultValue : {false, true}) {
        require(settings.config.getBool(key, defaultValue) ==
                    (known ? found->second == "1" : defaultValue),
                "getBool is true for 1 only");
    }
    require(settings.config.isModified() == settings.model.modified, "the modified flag is right");
}

void checkAll(const Settings& settings)
{
    for (const auto& pair : settings.model.values)
        checkValue(settings, pair.first);
}

void save(Settings& settings)
{
    std::optional<std::string> expected = file.content;
    const int result = settings.model.save(expected);
    require(settings.config.save() == result, "save answers the right code");
    require(file.content == expected, "save leaves the right file");
}

void step(Settings& settings, char operation, const std::string& text)
{
    const std::string key = text.substr(0, text.find('='));
    const std::string value = key.size() < text.size() ? text.substr(key.size() + 1) : "";
    switch (operation) {
    case 'n': // a name, or none
        settings.config.setFileName(text.empty() ? L"" : L"settings");
        settings.model.forget(!text.empty());
        break;
    case 's':
        settings.config.setValue(key, value);
        settings.model.set(key, value);
        break;
    case 'w':
        save(settings);
        break;
    case 'l':
        require(settings.config.load() == settings.model.read(false), "load answers right");
        checkAll(settings);
        break;
    case 'r':
        require(settings.config.reload() == settings.model.read(true), "reload answers right");
        checkAll(settings);
        break;
    case 'f': // another program writes the file
        file.content = text;
        break;
    case 'd':
        file.content.reset();
        break;
    case 'x':
        file.refusesReading = text == "r" || text == "rw";
        file.refusesWriting = text == "w" || text == "rw";
        break;
    default:
        break;
    }
    checkValue(settings, key);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    sys::setFileFunctions({&read, &write, &exists});
    file = {};
    Settings settings[2];
    for (Settings& each : settings)
        step(each, 'n', "settings");
    for (const std::string& field : fuzz::fieldsOf(fuzz::textOf(data, size))) {
        if (field.empty())
            continue;
        const bool second = field[0] >= 'A' && field[0] <= 'Z';
        step(settings[second ? 1 : 0], static_cast<char>(field[0] | 0x20), field.substr(1));
    }
    for (const Settings& each : settings)
        checkAll(each);
    return 0;
}
