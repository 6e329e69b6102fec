#include "ui/uninstall/src/command_line.h"

#include <gmock/gmock.h>

namespace uninstall {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CommandLine, AppArgumentIsTheOneAfterTheLastSwitch)
{
    struct Case
    {
        const char* what;
        std::vector<std::string> arguments;
        const char* expected;
    };
    const Case cases[] = {
        {"no arguments", {}, ""},
        {"no switch", {"ClipTrimmer", "x"}, ""},
        {"the plain form", {"/app", "ClipTrimmer"}, "ClipTrimmer"},
        {"among others", {"x", "/app", "ClipTrimmer", "/silent"}, "ClipTrimmer"},
        {"the last of two wins", {"/app", "A", "/app", "B"}, "B"},
        {"the last argument", {"/app"}, ""},
        {"the last argument after a value", {"/app", "A", "/app"}, ""},
        {"the switch as a value", {"/app", "/app"}, ""},
        {"the switch as a value arms the next", {"/app", "/app", "B"}, "B"},
        {"an empty value", {"/app", ""}, ""},
        {"an empty value wins too", {"/app", "A", "/app", ""}, ""},
        {"a blank value is kept", {"/app", " A "}, " A "},
        {"capitals do not match", {"/APP", "A"}, ""},
        {"mixed case does not match", {"/App", "A"}, ""},
        {"a hyphen does not match", {"-app", "A"}, ""},
        {"the form with '=' does not match", {"/app=A", "B"}, ""},
        {"a longer word does not match", {"/apps", "A"}, ""},
        {"blanks are not trimmed", {"/app ", "A"}, ""},
        {"the one before an unmatched word", {"/app", "A", "/APP", "B"}, "A"},
        {"bytes are kept", {"/app", "\xff\xe9"}, "\xff\xe9"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(appArgument(c.arguments), c.expected);
    }
}

TEST(CommandLine, CopiesFromTheSecondEntryToTheTerminatingNull)
{
    char program[] = "Uninstall.exe";
    char first[] = " /app ";
    char empty[] = "";
    char last[] = "\xe4\xff \"x\"";
    char behind[] = "behind the end";
    char* arguments[] = {program, first, empty, last, nullptr, behind, nullptr};
    EXPECT_THAT(copyArguments(arguments), ElementsAre(" /app ", "", "\xe4\xff \"x\""));
}

TEST(CommandLine, CopiesNothingWithoutArguments)
{
    char program[] = "Uninstall.exe";
    char* programOnly[] = {program, nullptr};
    EXPECT_THAT(copyArguments(programOnly), IsEmpty());
    char* nothing[] = {nullptr};
    EXPECT_THAT(copyArguments(nothing), IsEmpty());
}

} // namespace uninstall
