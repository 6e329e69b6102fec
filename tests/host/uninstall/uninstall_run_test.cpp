#include "tests/host/uninstall/recorded_run.h"
#include "ui/uninstall/src/app_catalogue.h"

#include <gmock/gmock.h>

namespace uninstall {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr bool full = true;
constexpr bool selective = false;

const std::set<std::string> removalWords{"uninstall", "remove"};

} // namespace

TEST(UninstallRun, DoesNothingWithoutRows)
{
    EXPECT_THAT(RecordedRun({}).run(), IsEmpty());
}

TEST(UninstallRun, DoesNothingWithoutACheckedRow)
{
    EXPECT_THAT(
        RecordedRun({{commandOf("ClipTrimmer"), false}, {commandOf("Tessera"), false}}).run(),
        IsEmpty());
}

TEST(UninstallRun, SelectiveRunTakesTheCheckedRowsInOrder)
{
    RecordedRun run({{commandOf("ClipTrimmer"), true},
                     {commandOf("TrackRipper"), false},
                     {commandOf("DiscComposer"), true}});
    EXPECT_THAT(run.run(), ElementsAre("id 2", "probe [ClipTrimmer]",
                                       uninstallStep(3, selective, "ClipTrimmer"), "remove 0",
                                       "id 5", "probe [DiscComposer]",
                                       uninstallStep(2, selective, "DiscComposer"), "remove 2"));
}

TEST(UninstallRun, FullRunLeavesTheSuiteToTheEnd)
{
    RecordedRun run(
        {{commandOf("ClipTrimmer")}, {commandOf("Tessera")}, {commandOf("DiscComposer")}});
    run.run();
    EXPECT_THAT(run.only(removalWords),
                ElementsAre(uninstallStep(3, full, "ClipTrimmer"), "remove 0",
                            uninstallStep(2, full, "DiscComposer"), "remove 2",
                            uninstallStep(1, full, "Tessera"), "remove 1"));
    EXPECT_THAT(run.only({"id"}), ElementsAre("id 2", "id 0", "id 5"));
}

TEST(UninstallRun, SuiteAloneIsTheLastApplication)
{
    RecordedRun run({{commandOf("Tessera")}});
    run.run();
    EXPECT_THAT(run.only(removalWords), ElementsAre(uninstallStep(1, full, "Tessera"), "remove 0"));
}

TEST(UninstallRun, SuiteStaysWhenAnotherRowIsUnchecked)
{
    RecordedRun run({{commandOf("Tessera"), true},
                     {commandOf("ClipTrimmer"), true},
                     {commandOf("DiscComposer"), false}});
    run.run();
    EXPECT_THAT(run.only(removalWords),
                ElementsAre(uninstallStep(3, selective, "ClipTrimmer"), "remove 1"));
}

// All ids in ascending order; ids without an application give the empty id string.
TEST(UninstallRun, SuiteRowProbesEveryId)
{
    RecordedRun run({{commandOf("Tessera")}});
    run.run();
    std::vector<std::string> expected;
    for (int id = 1; id <= 68; ++id)
        expected.push_back("probe [" + idToString(id) + "]");
    EXPECT_EQ(run.only({"probe"}), expected);
    EXPECT_EQ(expected.size(), 68U);
    EXPECT_EQ(expected.front(), "probe []");
    EXPECT_EQ(expected.back(), "probe [LightTable]");
    EXPECT_THAT(run.steps, Contains("probe [Photo Story and Slideshow]"));
    EXPECT_THAT(run.steps, Not(Contains("probe [Tessera]")));
}

TEST(UninstallRun, SuiteRowWarnsAboutEveryRunningApplication)
{
    RecordedRun run({{commandOf("Tessera")}});
    run.running = {"LightTable", "ClipTrimmer"};
    run.run();
    EXPECT_THAT(run.only({"warning", "uninstall"}),
                ElementsAre("warning [ClipTrimmer]", "warning [LightTable]",
                            uninstallStep(1, full, "Tessera")));
}

TEST(UninstallRun, WarnsBeforeItRemovesARunningApplication)
{
    RecordedRun run({{commandOf("ClipTrimmer")}, {commandOf("DiscComposer")}, {"x", false}});
    run.running = {"ClipTrimmer", "DiscComposer"};
    EXPECT_THAT(run.run(), ElementsAre("id 2", "probe [ClipTrimmer]", "warning [ClipTrimmer]",
                                       uninstallStep(3, selective, "ClipTrimmer"), "remove 0",
                                       "id 5", "probe [DiscComposer]", "warning [DiscComposer]",
                                       uninstallStep(2, selective, "DiscComposer"), "remove 1"));
}

TEST(UninstallRun, SurveyComesBeforeTheRunningCheck)
{
    RecordedRun run({{commandOf("ClipSaver")}, {commandOf("TrackSaver")}, {"x", false}});
    run.running = {"ClipSaver"};
    EXPECT_THAT(run.run(),
                ElementsAre("id 60", "survey 60", "probe [ClipSaver]", "warning [ClipSaver]",
                            uninstallStep(3, selective, "ClipSaver"), "remove 0", "id 61",
                            "survey 61", "probe [TrackSaver]",
                            uninstallStep(2, selective, "TrackSaver"), "remove 1"));
}

TEST(UninstallRun, OnlyTheTwoApplicationsHaveASurvey)
{
    std::vector<RecordedRow> rows;
    for (int id = 1; id <= 68; ++id) {
        if (!idToString(id).empty())
            rows.push_back({commandOf(id == 53 ? "PhotoStoryAndSlideshow" : idToString(id))});
    }
    rows.push_back({commandOf("Tessera")});
    RecordedRun run(std::move(rows));
    run.run();
    EXPECT_THAT(run.only({"survey"}), ElementsAre("survey 60", "survey 61"));
    EXPECT_EQ(run.only({"id"}).size(), 30U);
    EXPECT_EQ(run.only({"uninstall"}).size(), 30U);
    EXPECT_EQ(run.steps.back(), "remove 29");
}

TEST(UninstallRun, SurveyIsOpenedOncePerRow)
{
    RecordedRun run({{commandOf("ClipSaver")}, {commandOf("ClipSaver")}, {"x", false}});
    run.run();
    EXPECT_THAT(run.only({"survey"}), ElementsAre("survey 60", "survey 60"));
}

// The probe uses its name with spaces, the command the registered one.
TEST(UninstallRun, RowFiftyThreeIsProbedUnderItsSpacedName)
{
    RecordedRun run({{commandOf("PhotoStoryAndSlideshow")}, {"x", false}});
    EXPECT_THAT(run.run(),
                ElementsAre("id 53", "probe [Photo Story and Slideshow]",
                            uninstallStep(2, selective, "PhotoStoryAndSlideshow"), "remove 0"));
}

TEST(UninstallRun, UnknownApplicationIsProbedWithoutANameAndUninstalled)
{
    RecordedRun run({{commandOf("Stranger")}, {"C:\\plain.exe"}, {"x", false}});
    run.running = {""};
    EXPECT_THAT(run.run(),
                ElementsAre("id -1", "probe []", "warning []",
                            uninstallStep(3, selective, "Stranger"), "remove 0", "id -1",
                            "probe []", "warning []",
                            "uninstall 2 remaining, selective [C:\\plain.exe]", "remove 1"));
}

TEST(UninstallRun, EmptyCommandIsAnUnknownApplication)
{
    RecordedRun run({{""}, {"x", false}});
    EXPECT_THAT(run.run(), ElementsAre("id -1", "probe []", "uninstall 2 remaining, selective []",
                                       "remove 0"));
}

TEST(UninstallRun, FullRunWithoutASuiteRowStillEndsWithTheSuitesStep)
{
    RecordedRun run({{commandOf("ClipTrimmer")}, {""}});
    EXPECT_THAT(run.run(),
                ElementsAre("id 2", "probe [ClipTrimmer]", uninstallStep(2, full, "ClipTrimmer"),
                            "remove 0", "id -1", "probe []", "uninstall 1 remaining, full []",
                            "remove 1", "uninstall 0 remaining, full"));
}

TEST(UninstallRun, LastOfSeveralSuiteRowsIsTheOneUninstalled)
{
    const std::string second = "D:\\other.exe /log=D:\\logs\\Tessera_uninstall";
    RecordedRun run({{commandOf("Tessera")}, {second}, {commandOf("ClipTrimmer")}});
    run.run();
    EXPECT_THAT(
        run.only(removalWords),
        ElementsAre(uninstallStep(3, full, "ClipTrimmer"), "remove 2",
                    "uninstall 2 remaining, full [D:\\other.exe] [=D:\\logs\\Tessera_uninstall]",
                    "remove 1"));
    EXPECT_EQ(run.only({"probe"}).size(), 2 * 68U + 1);
}

TEST(UninstallRun, AcceptsHugeCommands)
{
    const std::string huge(30000, 'h');
    RecordedRun run({{huge}, {huge + " /log" + huge}, {"x", false}});
    run.run();
    EXPECT_THAT(run.only({"uninstall"}),
                ElementsAre("uninstall 3 remaining, selective [" + huge + "]",
                            "uninstall 2 remaining, selective [" + huge + "] [" + huge + "]"));
}

} // namespace uninstall
