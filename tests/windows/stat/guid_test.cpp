#include "ui/common/stat/guid.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>

TEST(CreateGuid, ReturnsRandomUuidsInLowerCase)
{
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<std::string> guids;
    for (int round = 0; round < 1000; ++round) {
        const std::string guid = stats::createGuid();
        EXPECT_TRUE(std::regex_match(guid, form)) << guid;
        guids.insert(guid);
    }
    EXPECT_EQ(guids.size(), 1000U);
}
