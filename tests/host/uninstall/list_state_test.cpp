#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/list_state.h"

#include <gmock/gmock.h>

namespace uninstall {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string suiteName = displayName(suiteId, false);

} // namespace

TEST(ListState, SuiteRowCountsOnlyWhenChecked)
{
    EXPECT_FALSE(suiteRowChecked({}));
    EXPECT_FALSE(suiteRowChecked({{"Other", true}, {suiteName, false}}));
    EXPECT_TRUE(suiteRowChecked({{"Other", false}, {suiteName, true}}));
    EXPECT_TRUE(suiteRowChecked({{suiteName, false}, {suiteName, true}}));
}

TEST(ListState, SuiteRowIsKnownByItsExactDisplayName)
{
    for (const std::string& text : {std::string(), idToString(suiteId), suiteName + " ",
                                    " " + suiteName, suiteName.substr(0, 10)}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(suiteRowChecked({{text, true}}));
    }
}

TEST(ListState, ControlsFollowTheCheckedRows)
{
    struct Case
    {
        const char* what;
        std::vector<ListRow> rows;
        bool anyChecked;
        bool allChecked;
    };
    const Case cases[] = {
        {"an empty list counts as all checked", {}, false, true},
        {"one unchecked row", {{"a", false}}, false, false},
        {"one checked row", {{"a", true}}, true, true},
        {"the first of two", {{"a", true}, {"b", false}}, true, false},
        {"the last of two", {{"a", false}, {"b", true}}, true, false},
        {"none of two", {{"a", false}, {"b", false}}, false, false},
        {"both", {{"a", true}, {"b", true}}, true, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(controlState(c.rows).anyChecked, c.anyChecked);
        EXPECT_EQ(controlState(c.rows).allChecked, c.allChecked);
    }
}

TEST(PreSelection, FindsEveryRowWithTheApplicationsName)
{
    constexpr int id = 2;
    const std::string name = displayName(id, false);
    EXPECT_THAT(rowsOfApplication({{"x", false}, {name, false}, {"y", false}, {name, true}},
                                  idToString(id)),
                ElementsAre(1U, 3U));
    EXPECT_THAT(rowsOfApplication({{suiteName, false}}, idToString(suiteId)), ElementsAre(0U));
}

TEST(PreSelection, UsesTheListNameOfASurveyedApplication)
{
    constexpr int id = 60;
    EXPECT_THAT(rowsOfApplication({{displayName(id, true), false}, {displayName(id, false), false}},
                                  idToString(id)),
                ElementsAre(1U));
}

TEST(PreSelection, ComparesTheWholeName)
{
    constexpr int id = 2;
    const std::string name = displayName(id, false);
    EXPECT_THAT(rowsOfApplication({{name + " ", false}, {idToString(id), false}, {"", false}},
                                  idToString(id)),
                IsEmpty());
    EXPECT_THAT(rowsOfApplication({{name, false}}, name), IsEmpty());
}

// Neither row 53, which has no display name, nor an unknown id may check a row without a text.
TEST(PreSelection, FindsNothingWithoutADisplayName)
{
    const std::vector<ListRow> rows{{"", false}, {idToString(53), false}, {suiteName, false}};
    EXPECT_THAT(rowsOfApplication(rows, ""), IsEmpty());
    EXPECT_THAT(rowsOfApplication(rows, "NoSuchApplication"), IsEmpty());
    EXPECT_THAT(rowsOfApplication(rows, "tessera"), IsEmpty());
    EXPECT_THAT(rowsOfApplication(rows, "PhotoStoryAndSlideshow"), IsEmpty());
    EXPECT_THAT(rowsOfApplication({}, "Tessera"), IsEmpty());
}

} // namespace uninstall
