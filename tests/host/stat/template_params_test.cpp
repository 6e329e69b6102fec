#include "ui/common/stat/template_params.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using stats::TemplateParams;

namespace {

TemplateParams abc()
{
    TemplateParams params;
    params.set({{"A", "1"}, {"B-2_x", "two"}, {"EMPTY", ""}, {"AMP", "x&y"}}, true);
    return params;
}

struct ExpansionCase
{
    std::string templateText;
    bool dropUnknown;
    std::string text;
    int unresolved;
};

class TemplateExpansion : public testing::TestWithParam<ExpansionCase>
{};

} // namespace

TEST(TemplateParamsSet, KeepsThePresentValueWithoutOverwrite)
{
    TemplateParams params;
    params.set("NAME", "old", true);
    params.set("NAME", "new", false);
    EXPECT_EQ(params.get("NAME"), "old");
}

TEST(TemplateParamsSet, ReplacesThePresentValueWithOverwrite)
{
    TemplateParams params;
    params.set("NAME", "old", false);
    params.set("NAME", "new", true);
    EXPECT_EQ(params.get("NAME"), "new");
}

TEST(TemplateParamsSet, KeepsAPresentEmptyValueWithoutOverwrite)
{
    TemplateParams params;
    params.set("NAME", "", true);
    params.set("NAME", "new", false);
    EXPECT_EQ(params.get("NAME"), "");
}

TEST(TemplateParamsSet, KeepsTheFirstOfARepeatedNameInAListWithoutOverwrite)
{
    TemplateParams params;
    params.set({{"NAME", "1"}, {"OTHER", "2"}, {"NAME", "3"}}, false);
    EXPECT_EQ(params.get("NAME"), "1");
    EXPECT_EQ(params.get("OTHER"), "2");
}

TEST(TemplateParamsSet, KeepsTheLastOfARepeatedNameInAListWithOverwrite)
{
    TemplateParams params;
    params.set({{"NAME", "1"}, {"NAME", "3"}}, true);
    EXPECT_EQ(params.get("NAME"), "3");
}

TEST(TemplateParamsGet, IsEmptyForAnAbsentNameAndCaseSensitive)
{
    EXPECT_EQ(abc().get("a"), "");
    EXPECT_EQ(abc().get("A"), "1");
}

TEST(TemplateParamsCopy, IsIndependent)
{
    TemplateParams original = abc();
    TemplateParams copy = original;
    copy.set("A", "changed", true);
    EXPECT_EQ(original.get("A"), "1");
}

TEST_P(TemplateExpansion, ReturnsTextAndCount)
{
    const ExpansionCase& expected = GetParam();
    const TemplateParams::Expansion actual =
        abc().expand(expected.templateText, expected.dropUnknown);
    EXPECT_EQ(actual.text, expected.text);
    EXPECT_EQ(actual.unresolvedCount, expected.unresolved);
}

INSTANTIATE_TEST_SUITE_P(Substitution, TemplateExpansion,
                         testing::Values(ExpansionCase{"", false, "", 0},
                                         ExpansionCase{"plain", false, "plain", 0},
                                         ExpansionCase{"{A}", false, "1", 0},
                                         ExpansionCase{"<{A}>", false, "<1>", 0},
                                         ExpansionCase{"{A}{B-2_x}{A}", false, "1two1", 0},
                                         ExpansionCase{"[{EMPTY}]", false, "[]", 0},
                                         ExpansionCase{"{AMP}!", false, "x&y!", 0}));

INSTANTIATE_TEST_SUITE_P(
    UnknownName, TemplateExpansion,
    testing::Values(ExpansionCase{"/?a={A}&b={NONE}", false, "/?a=1", 1},
                    ExpansionCase{"/?a={A}&b={NONE}", true, "/?a=1&b=", 0},
                    ExpansionCase{"/?b={NONE}&a={A}", false, "/?b=&a=1", 1},
                    ExpansionCase{"/?x=1&b={NONE}&a={A}", false, "/?x=1&a=1", 1},
                    ExpansionCase{"{NONE}", false, "", 1}, ExpansionCase{"{NONE}", true, "", 0},
                    ExpansionCase{"p&q={NONE}{NONE}r", false, "pr", 2},
                    // Each unknown name removes one more pair, whichever pair that is.
                    ExpansionCase{"a&b&c={NONE}{NONE}", false, "a", 2},
                    ExpansionCase{"v={AMP}w={NONE}z", false, "v=xz", 1},
                    ExpansionCase{"{a}", false, "", 1}));

INSTANTIATE_TEST_SUITE_P(
    LiteralBraces, TemplateExpansion,
    testing::Values(
        ExpansionCase{"{ }", false, "{ }", 0}, ExpansionCase{"a{ b} {A}", false, "a{ b} 1", 0},
        ExpansionCase{"{", false, "{", 0}, ExpansionCase{"{A", false, "{A", 0},
        ExpansionCase{"}{A}}", false, "}1}", 0}, ExpansionCase{"{}", false, "{}", 0},
        ExpansionCase{"{A {A}", false, "{A 1", 0}, ExpansionCase{"{A{A}", false, "{A1", 0},
        ExpansionCase{"{{A}}", false, "{1}", 0}, ExpansionCase{"{A.B}", false, "{A.B}", 0},
        ExpansionCase{"{\xC3\x84}", false, "{\xC3\x84}", 0},
        ExpansionCase{"{\"k\":\"{A}\"}", false, "{\"k\":\"1\"}", 0}));

TEST(TemplateExpansionText, IsNotExpandedRecursively)
{
    TemplateParams params;
    params.set("A", "{B}", true);
    params.set("B", "inner", true);
    EXPECT_EQ(params.expand("{A}", false).text, "{B}");
}

TEST(TemplateExpansionText, KeepsNulBytes)
{
    const std::string text("x\0{A}\0y", 7);
    EXPECT_EQ(abc().expand(text, false).text, std::string("x\0"
                                                          "1\0y",
                                                          5));
}
