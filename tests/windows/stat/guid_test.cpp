#include "tests/support/import_slot.h"
#include "tests/support/recorded_log.h"
#include "ui/common/stat/guid.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>

#include <rpc.h>

namespace {

RPC_STATUS RPC_ENTRY refuseUuid(UUID*)
{
    return RPC_S_OUT_OF_MEMORY;
}

RPC_STATUS RPC_ENTRY refuseText(const UUID*, RPC_WSTR*)
{
    return RPC_S_OUT_OF_MEMORY;
}

int freedTexts = 0;

RPC_STATUS RPC_ENTRY countFreed(RPC_WSTR*)
{
    ++freedTexts;
    return RPC_S_OK;
}

void expectLogged(const testing_support::RecordedLog& log, const std::string& start)
{
    ASSERT_EQ(log.records().size(), 1U);
    EXPECT_EQ(log.records()[0].text.rfind(start, 0), 0U) << log.records()[0].text;
}

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

TEST(CreateGuid, FreesTheSystemsText)
{
    freedTexts = 0;
    const ReplacedImport counted("RpcStringFreeW", &countFreed);
    stats::createGuid();
    EXPECT_EQ(freedTexts, 1);
}

TEST(CreateGuid, IsEmptyAndLogsTheErrorWhenTheSystemGivesNone)
{
    freedTexts = 0;
    const testing_support::RecordedLog log;
    const ReplacedImport refused("UuidCreate", &refuseUuid);
    const ReplacedImport counted("RpcStringFreeW", &countFreed);
    EXPECT_EQ(stats::createGuid(), "");
    EXPECT_EQ(freedTexts, 0);
    expectLogged(log, "UuidCreate failed: 14 ");
}

TEST(CreateGuid, IsEmptyAndLogsTheErrorWhenTheSystemHasNoTextForIt)
{
    const testing_support::RecordedLog log;
    const ReplacedImport refused("UuidToStringW", &refuseText);
    EXPECT_EQ(stats::createGuid(), "");
    expectLogged(log, "UuidToStringW failed: 14 ");
}

} // namespace
