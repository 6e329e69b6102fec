#include "ui/common/sys/ipc_commands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using sys::AnswerSource;
using sys::WindowAction;

struct PlanCase
{
    const char16_t* message;
    WindowAction action;
    AnswerSource answer;
    const char16_t* rest;
};

class MessagePlan : public testing::TestWithParam<PlanCase>
{};

TEST_P(MessagePlan, FollowsTheWordsInTheMessage)
{
    const PlanCase& c = GetParam();
    const sys::MessagePlan plan = sys::planForMessage(c.message);
    EXPECT_EQ(plan.windowAction, c.action);
    EXPECT_EQ(plan.answer, c.answer);
    EXPECT_TRUE(plan.rest == c.rest);
}

constexpr WindowAction nothing = WindowAction::none;
constexpr WindowAction restore = WindowAction::restore;
constexpr WindowAction minimize = WindowAction::minimize;
constexpr AnswerSource none = AnswerSource::none;
constexpr AnswerSource hook = AnswerSource::hook;
constexpr AnswerSource handle = AnswerSource::windowHandle;

INSTANTIATE_TEST_SUITE_P(
    Words, MessagePlan,
    testing::Values(PlanCase{u"/show", restore, hook, u""},
                    PlanCase{u"a/showb", restore, hook, u"ab"},
                    PlanCase{u"/show/minimized", minimize, none, u""},
                    PlanCase{u"/minimized/show", minimize, none, u""},
                    PlanCase{u"/minimized and then /show", minimize, none, u""},
                    // A minimising message has no answer, not even the requested handle.
                    PlanCase{u"/show /minimized /gethwnd", minimize, none, u""},
                    PlanCase{u"/gethwnd", nothing, handle, u""},
                    PlanCase{u"/show /gethwnd", restore, handle, u""},
                    PlanCase{u"/gethwnd/show", restore, handle, u""},
                    PlanCase{u"/minimized /gethwnd", nothing, handle, u""},
                    PlanCase{u"/minimized", nothing, hook, u""},
                    PlanCase{u"x /minimized y", nothing, hook, u"x  y"}));

INSTANTIATE_TEST_SUITE_P(NoWords, MessagePlan,
                         testing::Values(PlanCase{u"", nothing, hook, u""},
                                         PlanCase{u"/app Convert", nothing, hook, u"/app Convert"},
                                         PlanCase{u"/SHOW /Minimized /GETHWND", nothing, hook,
                                                  u"/SHOW /Minimized /GETHWND"},
                                         PlanCase{u"show", nothing, hook, u"show"},
                                         PlanCase{u"/sho w", nothing, hook, u"/sho w"},
                                         PlanCase{u"revive", nothing, hook, u"revive"}));

INSTANTIATE_TEST_SUITE_P(
    Removal, MessagePlan,
    testing::Values(PlanCase{u"1/show2/show3", restore, hook, u"123"},
                    // A word that a removal joins together stays.
                    PlanCase{u"/sh/showow", restore, hook, u"/show"},
                    // "/show" is removed first, so that a word joined by that is still found.
                    PlanCase{u"/mini/showmized", restore, hook, u""},
                    PlanCase{u"/get/showhwnd", restore, hook, u""},
                    PlanCase{u"/s/minimizedhow", nothing, hook, u"/show"}));

TEST(MessagePlanText, NulCharactersNeitherEndTheSearchNorTheRest)
{
    const sys::MessagePlan plan = sys::planForMessage(std::u16string_view(u"a\0/show\0b", 9));
    EXPECT_EQ(plan.windowAction, restore);
    EXPECT_TRUE(plan.rest == std::u16string(u"a\0\0b", 4));
}

TEST(BringsWindowUp, OnlyByShowWithoutMinimized)
{
    struct Case
    {
        const char* message;
        bool expected;
    };
    for (const Case& c :
         {Case{"/show", true}, Case{"x/showx", true}, Case{"/show /gethwnd", true},
          Case{"/show /minimized", false}, Case{"/minimized/show", false}, Case{"/SHOW", false},
          Case{"/minimized", false}, Case{"", false}, Case{"/app Convert", false}})
        EXPECT_EQ(sys::bringsWindowUp(c.message), c.expected) << c.message;
}

TEST(AnswerRevives, IfItContainsTheWordInLowerCase)
{
    EXPECT_TRUE(sys::answerRevives("revive"));
    EXPECT_TRUE(sys::answerRevives("please revive now"));
    EXPECT_FALSE(sys::answerRevives(""));
    EXPECT_FALSE(sys::answerRevives("Revive"));
    EXPECT_FALSE(sys::answerRevives("reviv"));
}

TEST(ShowMessage, IsTheShowWord)
{
    EXPECT_EQ(sys::showMessage(), "/show");
}

TEST(JoinArguments, PutsOneSpaceBetweenArguments)
{
    struct Case
    {
        std::vector<std::string> arguments;
        std::string expected;
    };
    for (const Case& c : {Case{{}, ""}, Case{{"/app"}, "/app"}, Case{{"/app", "X"}, "/app X"},
                          Case{{"a b", " c "}, "a b  c "}, Case{{"", ""}, " "}, Case{{""}, ""},
                          Case{{"\xe9", "\xff"}, "\xe9 \xff"}})
        EXPECT_EQ(sys::joinArguments(c.arguments), c.expected);
}

TEST(HandleText, IsTheLowHalfAsASignedDecimalNumber)
{
    struct Case
    {
        std::uint64_t handle;
        const char* text;
    };
    for (const Case& c : {Case{0, "0"}, Case{65620, "65620"}, Case{0x7fffffff, "2147483647"},
                          Case{0x80000000, "-2147483648"}, Case{0xffffffff, "-1"},
                          Case{0x100000002, "2"}, Case{0xffffffff80000001, "-2147483647"}})
        EXPECT_EQ(sys::handleText(c.handle), c.text);
}

} // namespace
