#include "ui/uninstall/src/run_state.h"

#include <gtest/gtest.h>

#include <optional>

namespace uninstall {

TEST(RunState, ChoiceIsOpenBeforeTheRun)
{
    const RunState state;
    EXPECT_FALSE(state.begun());
    EXPECT_FALSE(state.cancelled());
    EXPECT_TRUE(state.choiceIsOpen());
}

TEST(RunState, BeginsOnce)
{
    RunState state;
    EXPECT_TRUE(state.begin());
    EXPECT_TRUE(state.begun());
    EXPECT_FALSE(state.begin());
    EXPECT_TRUE(state.begun());
}

TEST(RunState, DoesNotBeginTwiceEvenAfterACancel)
{
    RunState state;
    state.begin();
    state.cancel();
    EXPECT_FALSE(state.begin());
    EXPECT_TRUE(state.cancelled());
}

TEST(RunState, OnlyABegunRunCanBeCancelled)
{
    RunState state;
    state.cancel();
    EXPECT_FALSE(state.cancelled());
    EXPECT_TRUE(state.begin());
    EXPECT_FALSE(state.cancelled());
    state.cancel();
    EXPECT_TRUE(state.cancelled());
    EXPECT_TRUE(state.begun());
}

TEST(RunState, ChoiceIsOpenDuringTheRunOnlyForItsOwnChanges)
{
    RunState state;
    state.begin();
    EXPECT_FALSE(state.choiceIsOpen());
    {
        const RunState::OwnChange own(state);
        EXPECT_TRUE(state.choiceIsOpen());
        {
            const RunState::OwnChange inner(state);
            EXPECT_TRUE(state.choiceIsOpen());
        }
        EXPECT_TRUE(state.choiceIsOpen());
    }
    EXPECT_FALSE(state.choiceIsOpen());
}

TEST(RunState, ChoiceIsOpenAfterACancelOnlyForTheRunsOwnChanges)
{
    RunState state;
    state.begin();
    state.cancel();
    EXPECT_FALSE(state.choiceIsOpen());
    const RunState::OwnChange own(state);
    EXPECT_TRUE(state.choiceIsOpen());
}

TEST(RunState, OwnChangeMaySpanTheStartOfTheRun)
{
    RunState state;
    std::optional<RunState::OwnChange> own(std::in_place, state);
    state.begin();
    EXPECT_TRUE(state.choiceIsOpen());
    own.reset();
    EXPECT_FALSE(state.choiceIsOpen());
}

} // namespace uninstall
