// Any text as an uninstall command, an install path and a command line: compares the results with
// plain second implementations.
//
// Input: two bytes of options, then the text.

#include "tests/fuzz/fuzz_support.h"
#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/command_line.h"
#include "ui/uninstall/src/registry_names.h"
#include "ui/uninstall/src/uninstall_command.h"

#include <algorithm>

namespace {

using fuzz::contains;
using fuzz::require;

// The text between the last `before` and the first `after` that follows it.
std::string between(std::string text, const std::string& before, const std::string& after)
{
    for (std::size_t i = text.size(); i-- > 0;) {
        if (text.compare(i, before.size(), before) == 0) {
            text.erase(0, i + before.size());
            break;
        }
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, after.size(), after) == 0) {
            text.erase(i);
            break;
        }
    }
    return text;
}

void checkParts(const std::string& command)
{
    const std::vector<std::string> parts = uninstall::splitCommand(command);
    require(!parts.empty(), "there is at least one part");
    std::string joined = parts[0];
    for (std::size_t i = 1; i < parts.size(); ++i)
        joined += " /log" + parts[i];
    require(joined == command, "the joined parts are the command");
    require(std::none_of(parts.begin(), parts.end(),
                         [](const std::string& part) { return contains(part, " /log"); }),
            "no switch is left inside a part");
    require(uninstall::programOf(parts) == command.substr(0, command.find(" /log")),
            "the program stands before the first switch");
}

void checkSwitches(const std::string& command, const uninstall::RunOptions& options)
{
    const std::vector<std::string> parts = uninstall::splitCommand(command);
    const std::vector<std::string> arguments = uninstall::uninstallArguments(parts, options);

    std::vector<std::string> expected{"/log" + parts.back(), "/SILENT", "/FULL",
                                      "/SUPPRESSMSGBOXES",
                                      options.remaining == 1 ? "/LASTAPP" : "/DISABLEREDIRECT"};
    if (!options.full)
        expected.erase(expected.begin() + 4);
    if (!options.deleteSettings)
        expected.erase(expected.begin() + 2);
    if (options.full && (options.remaining > 3 || options.deleteSettings))
        expected.erase(expected.begin());
    require(arguments == expected, "the switches follow the options");
    require(uninstall::writesUninstallMode(options) == (options.full && options.remaining > 1),
            "the mode is written unless the last application is removed");
}

void checkNames(const std::string& text)
{
    const std::string id = uninstall::idStringFromCommand(text);
    require(id == between(text, "logs\\", "_uninstall"), "the id stands between its marks");
    const int number = uninstall::idFromString(id);
    require(number == uninstall::unknownId || number == uninstall::suiteId ||
                (number >= uninstall::firstAppId && number <= uninstall::lastAppId),
            "an id is known, the suite's or none");
    if (number != uninstall::unknownId && number != 53)
        require(uninstall::idToString(number) == id, "ids translate both ways");
    require(!uninstall::shortCode(number).empty(), "a short code is never empty");

    for (const std::string brand : {"Corvane", "Lumacraft"}) {
        require(uninstall::shownName(text, brand) == between(text, brand + "\\", "\\"),
                "the shown name is the folder behind the brand");
    }
    require(uninstall::listName(text) == (text == "Corvane" ? "UninstallPaths" : "UninstPaths"),
            "only the company's brand has its own list");
}

void checkCommandLine(const std::string& text)
{
    // As the start-up code passes arguments: ended by NULs and a null pointer.
    std::vector<std::string> words = fuzz::fieldsOf(text);
    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    const std::vector<std::string> arguments = uninstall::copyArguments(argv.data());
    require(arguments.size() == words.size() - 1, "the program's name is left out");
    std::string expected;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        require(arguments[i] == std::string_view(argv[i + 1]), "arguments are copied byte by byte");
        if (arguments[i] == "/app")
            expected = i + 1 < arguments.size() ? arguments[i + 1] : "";
    }
    require(uninstall::appArgument(arguments) == expected, "the last /app counts");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const uninstall::RunOptions options{static_cast<std::int8_t>(data[0]), (data[1] & 1) != 0,
                                        (data[1] & 2) != 0};
    const std::string text = fuzz::textOf(data + 2, size - 2);
    checkParts(text);
    checkSwitches(text, options);
    checkNames(text);
    checkCommandLine(text);
    return 0;
}
