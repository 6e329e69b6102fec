#include "ui/uninstall/src/app_catalogue.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <set>
#include <vector>

namespace uninstall {

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::StartsWith;

std::vector<int> rowIds()
{
    std::vector<int> ids;
    for (int id = -2; id <= 100; ++id) {
        if (!idToString(id).empty())
            ids.push_back(id);
    }
    return ids;
}

constexpr int irregularId = 53;

// idToString() gives row 53's name with spaces, but the application is registered without them.
std::string registeredIdString(int id)
{
    return id == irregularId ? "PhotoStoryAndSlideshow" : idToString(id);
}

constexpr int surveyIds[] = {60, 61};

bool isSurveyId(int id)
{
    return id == surveyIds[0] || id == surveyIds[1];
}

} // namespace

TEST(AppCatalogue, HasThirtyRows)
{
    EXPECT_THAT(rowIds(), ElementsAre(0, 2, 3, 5, 9, 10, 14, 15, 25, 27, 33, 39, 40, 42, 43, 52, 53,
                                      54, 55, 58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68));
}

TEST(AppCatalogue, IdStringsLeadBackToTheirIds)
{
    for (const int id : rowIds()) {
        SCOPED_TRACE(id);
        EXPECT_EQ(idFromString(registeredIdString(id)), id);
    }
}

TEST(AppCatalogue, NamesAndCodesAreUnique)
{
    std::set<std::string> idStrings;
    std::set<std::string> names;
    std::set<std::string> codes;
    for (const int id : rowIds()) {
        SCOPED_TRACE(id);
        EXPECT_TRUE(idStrings.insert(registeredIdString(id)).second);
        EXPECT_TRUE(names.insert(displayName(id, false)).second);
        EXPECT_TRUE(codes.insert(shortCode(id)).second);
    }
}

TEST(AppCatalogue, IdStringsAreComparedExactly)
{
    EXPECT_EQ(idFromString("Tessera"), suiteId);
    for (const std::string& text :
         {std::string(), std::string("tessera"), std::string("TESSERA"), std::string("Tessera "),
          std::string(" Tessera"), std::string("Tesser"), std::string("TesseraKit"),
          std::string("Tessera\0", 8), displayName(suiteId, false), idToString(irregularId),
          std::string(30000, 'T')}) {
        SCOPED_TRACE(text.substr(0, 40));
        EXPECT_EQ(idFromString(text), unknownId);
    }
}

TEST(AppCatalogue, SuiteHasItsProductName)
{
    EXPECT_EQ(idToString(suiteId), "Tessera");
    EXPECT_EQ(displayName(suiteId, false).size(), 11U);
    EXPECT_THAT(displayName(suiteId, false), StartsWith("Tessera "));
}

TEST(AppCatalogue, RowFiftyThreeIsIrregular)
{
    EXPECT_EQ(displayName(irregularId, false), "");
    EXPECT_EQ(displayName(irregularId, true), "");
    EXPECT_EQ(idToString(irregularId).size(), 25U);
    EXPECT_NE(idToString(irregularId).find(' '), std::string::npos);
    EXPECT_EQ(idFromString(registeredIdString(irregularId)), irregularId);
}

TEST(AppCatalogue, SurveyApplicationsHaveTwoNames)
{
    for (const int id : surveyIds) {
        SCOPED_TRACE(id);
        EXPECT_THAT(displayName(id, false), EndsWith(" 2026"));
        EXPECT_THAT(displayName(id, true), StartsWith("Tessera "));
    }
}

TEST(AppCatalogue, OtherRowsHaveOneNameThatIsNotEmpty)
{
    for (const int id : rowIds()) {
        if (id == irregularId || isSurveyId(id))
            continue;
        SCOPED_TRACE(id);
        EXPECT_NE(displayName(id, false), "");
        EXPECT_EQ(displayName(id, false), displayName(id, true));
    }
}

TEST(AppCatalogue, OnlyTheIdStringOfRowFiftyThreeHasSpaces)
{
    for (const int id : rowIds()) {
        SCOPED_TRACE(id);
        EXPECT_EQ(idToString(id).find(' ') != std::string::npos, id == irregularId);
    }
}

TEST(AppCatalogue, IdsWithoutARowHaveNoNames)
{
    for (const int id : {INT_MIN, -2, -1, 1, 4, 6, 7, 8, 13, 41, 57, 69, 70, 1000, INT_MAX}) {
        SCOPED_TRACE(id);
        EXPECT_EQ(idToString(id), "");
        EXPECT_EQ(displayName(id, false), "");
        EXPECT_EQ(displayName(id, true), "");
    }
}

TEST(AppCatalogue, ShortCodesOfRowsHaveTwoToSevenLetters)
{
    for (const int id : rowIds()) {
        SCOPED_TRACE(id);
        const std::string code = shortCode(id);
        EXPECT_GE(code.size(), 2U);
        EXPECT_LE(code.size(), 7U);
        EXPECT_NE(code, "unkn");
        EXPECT_TRUE(std::all_of(code.begin(), code.end(),
                                [](char letter) { return letter >= 'a' && letter <= 'z'; }));
    }
    EXPECT_EQ(shortCode(60).size(), 4U);
    EXPECT_EQ(shortCode(61).size(), 5U);
    EXPECT_EQ(shortCode(10).size(), 7U);
}

TEST(AppCatalogue, ShortCodesOfIdsWithoutARow)
{
    struct Case
    {
        int id;
        const char* code;
    };
    for (const Case& c :
         {Case{1, "_1"}, Case{4, "_2"}, Case{6, "_3"}, Case{7, "_4"}, Case{13, "_8"},
          Case{-1, "po"}, Case{8, "unkn"}, Case{12, "unkn"}, Case{69, "unkn"}, Case{1000, "unkn"},
          Case{-2, "unkn"}, Case{INT_MIN, "unkn"}, Case{INT_MAX, "unkn"}}) {
        SCOPED_TRACE(c.id);
        EXPECT_EQ(shortCode(c.id), c.code);
    }
}

} // namespace uninstall
