#include "ui/uninstall/src/uninstall_command.h"

#include <gmock/gmock.h>

namespace uninstall {

namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;

constexpr const char* usualCommand =
    R"(C:\Program Files\Corvane\Clip Trimmer\unins000.exe /log="C:\Temp\logs\ClipTrimmer_uninstall.log")";

const std::vector<std::string> usualParts{R"(C:\unins000.exe)", R"(="C:\logs\A_uninstall.log")"};
const std::string usualLogSwitch = R"(/log="C:\logs\A_uninstall.log")";

} // namespace

TEST(UninstallCommand, IdStringIsBetweenLogsAndUninstall)
{
    struct Case
    {
        const char* what;
        std::string command;
        std::string expected;
    };
    const Case cases[] = {
        {"the usual command", usualCommand, "ClipTrimmer"},
        {"the last of several folders", R"(x /log=D:\logs\old\logs\Tessera_uninstall.log)",
         "Tessera"},
        {"the first mark behind it", R"(x /log=C:\logs\A_uninstall_uninstall.log)", "A"},
        {"a mark before it does not count", R"(C:\A_uninstall.exe /log=C:\logs\B_uninstall)", "B"},
        {"no mark behind it", R"(x /log=C:\logs\A.log)", "A.log"},
        {"no folder", R"(A_uninstall.log)", "A"},
        {"neither", "C:\\setup.exe", "C:\\setup.exe"},
        {"nothing between", R"(C:\logs\_uninstall.log)", ""},
        {"the folder at the end", R"(x /log=C:\logs\)", ""},
        {"other letter case of the folder", R"(C:\LOGS\A_uninstall.log)", R"(C:\LOGS\A)"},
        {"other letter case of the mark", R"(C:\logs\A_Uninstall.log)", "A_Uninstall.log"},
        {"a folder that ends so", R"(C:\mylogs\A_uninstall.log)", "A"},
        {"a slash is no separator", "C:/logs/A_uninstall.log", "C:/logs/A"},
        {"quotes belong to the text", R"(x /log="C:\logs\"A"_uninstall.log")", "\"A\""},
        {"letters beyond ASCII", "x /log=C:\\logs\\\xc3\x84pfel_uninstall.log", "\xc3\x84pfel"},
        {"a NUL is a byte like others", "x\0 /log=C:\\logs\\A\0_uninstall"s, "A\0"s},
        {"an empty command", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(idStringFromCommand(c.command), c.expected);
    }
}

TEST(UninstallCommand, SplitsAtTheLogSwitch)
{
    struct Case
    {
        const char* what;
        std::string command;
        std::vector<std::string> expected;
    };
    const Case cases[] = {
        {"the usual command",
         usualCommand,
         {R"(C:\Program Files\Corvane\Clip Trimmer\unins000.exe)",
          R"(="C:\Temp\logs\ClipTrimmer_uninstall.log")"}},
        {"no switch", R"("C:\a b\c.exe" /x)", {R"("C:\a b\c.exe" /x)"}},
        {"an empty command", "", {""}},
        {"nothing but the switch", " /log", {"", ""}},
        {"a switch at the end", "a /log", {"a", ""}},
        {"a switch at the start", " /log=b", {"", "=b"}},
        {"two switches", "a /log=b /log=c", {"a", "=b", "=c"}},
        {"two switches in a row", "a /log /logb", {"a", "", "b"}},
        {"capitals do not match", "a /LOG=b", {"a /LOG=b"}},
        {"a blank is needed", "a/log=b", {"a/log=b"}},
        {"one blank is taken", "a  /log=b", {"a ", "=b"}},
        {"a longer word matches too", "a /logfile=b", {"a", "file=b"}},
        {"a NUL is a byte like others", "a\0 /log\0"s, {"a\0"s, "\0"s}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(splitCommand(c.command), c.expected);
    }
}

TEST(UninstallCommand, MayHaveThirtyThousandCharacters)
{
    const std::string longName(30000, 'n');
    EXPECT_EQ(idStringFromCommand("x /log=C:\\logs\\" + longName + "_uninstall"), longName);
    EXPECT_EQ(idStringFromCommand(longName), longName);
    EXPECT_THAT(splitCommand(longName), ElementsAre(longName));
    EXPECT_THAT(splitCommand(longName + " /log" + longName), ElementsAre(longName, longName));

    std::string manySwitches;
    while (manySwitches.size() < 30000)
        manySwitches += " /log";
    EXPECT_EQ(splitCommand(manySwitches).size(), 6001U);
}

TEST(UninstallCommand, ProgramIsTheUnchangedFirstPart)
{
    EXPECT_EQ(programOf({}), "");
    EXPECT_EQ(programOf({""}), "");
    EXPECT_EQ(programOf({"", "=b"}), "");
    EXPECT_EQ(programOf({"C:\\a.exe /x"}), "C:\\a.exe /x");
    EXPECT_EQ(programOf({" \"C:\\a b\\c.exe\" ", "=b"}), " \"C:\\a b\\c.exe\" ");
}

TEST(UninstallSwitches, DependOnTheOptions)
{
    struct Case
    {
        const char* what;
        RunOptions options;
        std::vector<std::string> expected;
    };
    const std::string& log = usualLogSwitch;
    const Case cases[] = {
        {"selective", {5, false, false}, {log, "/SILENT", "/SUPPRESSMSGBOXES"}},
        {"selective, one row left", {1, false, false}, {log, "/SILENT", "/SUPPRESSMSGBOXES"}},
        {"selective with settings",
         {5, false, true},
         {log, "/SILENT", "/FULL", "/SUPPRESSMSGBOXES"}},
        {"selective with settings, one row left",
         {1, false, true},
         {log, "/SILENT", "/FULL", "/SUPPRESSMSGBOXES"}},
        {"full, many rows left",
         {4, true, false},
         {"/SILENT", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"}},
        {"full, three rows left",
         {3, true, false},
         {log, "/SILENT", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"}},
        {"full, two rows left",
         {2, true, false},
         {log, "/SILENT", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"}},
        {"full, the last row", {1, true, false}, {log, "/SILENT", "/SUPPRESSMSGBOXES", "/LASTAPP"}},
        {"full, no row left",
         {0, true, false},
         {log, "/SILENT", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"}},
        {"full with settings, many rows left",
         {9, true, true},
         {"/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"}},
        {"full with settings, two rows left",
         {2, true, true},
         {"/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"}},
        {"full with settings, the last row",
         {1, true, true},
         {"/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/LASTAPP"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(uninstallArguments(usualParts, c.options), c.expected);
    }
}

TEST(UninstallSwitches, LogSwitchTakesTheLastPart)
{
    struct Case
    {
        const char* what;
        std::vector<std::string> parts;
        const char* expected;
    };
    const Case cases[] = {
        {"two parts", {"a", "=b"}, "/log=b"},
        {"three parts", {"a", "=b", "=c d"}, "/log=c d"},
        {"one part is program and log at once", {"C:\\a.exe /x"}, "/logC:\\a.exe /x"},
        {"an empty last part", {"a", ""}, "/log"},
        {"no part", {}, "/log"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(uninstallArguments(c.parts, {1, false, false}).front(), c.expected);
    }
}

TEST(UninstallSwitches, UninstallModeIsWrittenInFullRunsWhileMoreFollow)
{
    for (const bool deleteSettings : {false, true}) {
        SCOPED_TRACE(deleteSettings);
        for (const int remaining : {2, 3, 4, 30})
            EXPECT_TRUE(writesUninstallMode({remaining, true, deleteSettings})) << remaining;
        for (const int remaining : {1, 0, -1})
            EXPECT_FALSE(writesUninstallMode({remaining, true, deleteSettings})) << remaining;
        for (const int remaining : {1, 2, 30})
            EXPECT_FALSE(writesUninstallMode({remaining, false, deleteSettings})) << remaining;
    }
}

} // namespace uninstall
