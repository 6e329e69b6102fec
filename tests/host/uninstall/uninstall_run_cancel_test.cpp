#include "tests/host/uninstall/recorded_run.h"

#include <gmock/gmock.h>

namespace uninstall {

namespace {

using ::testing::ElementsAre;

void setAll(RecordedRun& run, bool checked)
{
    for (RecordedRow& row : run.rows)
        row.checked = checked;
}

} // namespace

TEST(CancelledRun, CancelOnTheFirstApplicationUninstallsNothing)
{
    RecordedRun run({{commandOf("ClipTrimmer")}, {commandOf("DiscComposer")}, {"x", false}});
    run.running = {"ClipTrimmer", "DiscComposer"};
    run.cancels = [](const std::string&) { return true; };
    EXPECT_THAT(run.run(),
                ElementsAre("id 2", "probe [ClipTrimmer]", "warning [ClipTrimmer]", "id 5"));
}

TEST(CancelledRun, CancelInTheMiddleKeepsEarlierRemovals)
{
    RecordedRun run({{commandOf("ClipTrimmer")},
                     {commandOf("TrackRipper")},
                     {commandOf("DiscComposer")},
                     {"x", false}});
    run.running = {"ClipTrimmer", "TrackRipper"};
    run.cancels = [](const std::string& idString) { return idString == "TrackRipper"; };
    run.run();
    EXPECT_THAT(run.only({"warning", "uninstall", "remove"}),
                ElementsAre("warning [ClipTrimmer]", uninstallStep(4, false, "ClipTrimmer"),
                            "remove 0", "warning [TrackRipper]"));
    EXPECT_EQ(run.only({"probe"}).size(), 2U);
}

// In a selective run Cancel checks every row: the run still visits them, but does not probe them.
TEST(CancelledRun, RowsCheckedByTheCancelAreVisitedButNotUninstalled)
{
    RecordedRun run({{commandOf("ClipTrimmer"), true},
                     {commandOf("ClipSaver"), false},
                     {commandOf("Tessera"), false},
                     {commandOf("Stranger"), false}});
    run.running = {"ClipTrimmer", "ClipSaver"};
    run.cancels = [&run](const std::string&) {
        setAll(run, true);
        return true;
    };
    EXPECT_THAT(run.run(), ElementsAre("id 2", "probe [ClipTrimmer]", "warning [ClipTrimmer]",
                                       "id 60", "survey 60", "id 0", "id -1"));
}

// In a full run Cancel unchecks every row, so the run visits no more of them.
TEST(CancelledRun, RowsUncheckedByTheCancelAreSkipped)
{
    RecordedRun run({{commandOf("ClipTrimmer")},
                     {commandOf("DiscComposer")},
                     {commandOf("ClipSaver")},
                     {commandOf("Tessera")}});
    run.running = {"DiscComposer"};
    run.cancels = [&run](const std::string&) {
        setAll(run, false);
        return true;
    };
    EXPECT_THAT(run.run(),
                ElementsAre("id 2", "probe [ClipTrimmer]", uninstallStep(4, true, "ClipTrimmer"),
                            "remove 0", "id 5", "probe [DiscComposer]", "warning [DiscComposer]"));
}

TEST(CancelledRun, CancelDuringTheSuitesProbesEndsThem)
{
    RecordedRun run({{commandOf("Tessera")}, {commandOf("ClipTrimmer")}});
    run.running = {"ClipTrimmer", "LightTable"};
    run.cancels = [](const std::string&) { return true; };
    EXPECT_THAT(run.run(), ElementsAre("id 0", "probe []", "probe [ClipTrimmer]",
                                       "warning [ClipTrimmer]", "id 2"));
}

TEST(CancelledRun, CancelAtTheVeryEndStillKeepsTheSuite)
{
    RecordedRun run({{commandOf("Tessera")}});
    run.running = {"LightTable"};
    run.cancels = [](const std::string&) { return true; };
    run.run();
    EXPECT_THAT(run.only({"warning", "uninstall", "remove"}), ElementsAre("warning [LightTable]"));
}

// Cancel stops only probes and removals.
TEST(CancelledRun, SurveyOfALaterRowIsStillOpened)
{
    RecordedRun run({{commandOf("ClipTrimmer")}, {commandOf("TrackSaver")}, {"x", false}});
    run.running = {"ClipTrimmer"};
    run.cancels = [](const std::string&) { return true; };
    EXPECT_THAT(run.run(), ElementsAre("id 2", "probe [ClipTrimmer]", "warning [ClipTrimmer]",
                                       "id 61", "survey 61"));
}

} // namespace uninstall
