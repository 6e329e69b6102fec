#include "ui/common/stat/guid.h"

#include <gmock/gmock.h>

TEST(Guid, IsAFreshOneInLowerCase)
{
    const std::string digit = "[0-9a-f]";
    std::string pattern;
    for (const int length : {8, 4, 4, 4, 12}) {
        pattern += pattern.empty() ? "" : "-";
        for (int count = 0; count < length; ++count)
            pattern += digit;
    }
    EXPECT_THAT(stats::createGuid(), testing::MatchesRegex(pattern));
    EXPECT_NE(stats::createGuid(), stats::createGuid());
}

TEST(Guid, ComesFromAnotherSourceWhileOneIsSet)
{
    stats::setGuidSource([] { return std::string("replaced"); });
    EXPECT_EQ(stats::createGuid(), "replaced");
    EXPECT_NE(stats::systemGuid(), "replaced");
    stats::setGuidSource(nullptr);
    EXPECT_NE(stats::createGuid(), "replaced");
}
