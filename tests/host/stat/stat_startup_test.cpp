#include "tests/host/stat/stat_fixture.h"
#include "ui/common/stat/app_event_stat.h"
#include "ui/uninstall/src/stat_startup.h"

using stats::AppStatHelper;
using uninstall::applicationCode;
using uninstall::startStatistics;

namespace {

constexpr const char* guid = "01234567-89ab-4cde-8f01-23456789abcd";

void runHere(const std::function<void()>& call)
{
    call();
}

// The start-up works on the process-wide sender.
class StatStartup : public StatTest
{
protected:
    // The form data of the next event.
    std::string nextBody()
    {
        scripted::answerInOrder({{0, 200, {}}});
        AppStatHelper::instance().sendEvent("type", "src", "", "", true, 0);
        return scripted::requests().at(0).postData;
    }
};

} // namespace

TEST(ApplicationCode, IsTheShortCodeWithoutASuffix)
{
    EXPECT_EQ(applicationCode(60, true), "clsv");
    EXPECT_EQ(applicationCode(60, false), "clsv");
    EXPECT_EQ(applicationCode(-1, true), "po");
}

TEST(ApplicationCode, OfTheSuiteHasASuffixByTheFlag)
{
    EXPECT_EQ(applicationCode(0, true), "tsr_qx");
    EXPECT_EQ(applicationCode(0, false), "tsr_a");
}

TEST_F(StatStartup, FillsTheParametersFromBothFiles)
{
    storeCommon("ClientGuid=the-guid\nEventStatEnabled=1\nLocation=DE\n");
    storeApplication(60, "AdvType=adv\nCampType=camp\nEventNumber=7\nInstChannel=channel\n"
                         "InstRef=ref\nInstType=type\nTCBuildNum=99\nVersion=1.2.3.4\n");
    startStatistics(60, false, runHere);
    EXPECT_EQ(nextBody(),
              "data=%7B\"guid\"%3A\"the%2Dguid\"%2C\"country_id\"%3A\"DE\"%2C\"pid\"%3A\"\"%2C"
              "\"adv_type\"%3A\"adv\"%2C\"camp_type\"%3A\"camp\"%2C\"appid\"%3A\"clsv\"%2C"
              "\"ver\"%3A\"1%2E2%2E3%2E4\"%2C\"event_type\"%3A\"type\"%2C"
              "\"event_number\"%3A\"8\"%2C\"src\"%3A\"src\"%2C\"info_type\"%3A\"\"%2C"
              "\"info\"%3A\"\"%2C\"inst_type\"%3A\"type\"%2C\"inst_ch\"%3A\"channel\"%2C"
              "\"inst_ref\"%3A\"ref\"%2C\"test\"%3A\"0\"%2C\"tc_build_num\"%3A\"99\"%2C"
              "\"product_name\"%3A\"\"%2C\"id_lmc_keys\"%3A\"\"%7D");
}

TEST_F(StatStartup, UsesDefaultsWithoutAnApplicationFile)
{
    storeCommon("ClientGuid=g\nEventStatEnabled=1\nLocation=DE\n");
    startStatistics(61, false, runHere);
    const std::string body = nextBody();
    EXPECT_NE(body.find("\"ver\"%3A\"0%2E0%2E0%2E0\""), std::string::npos);
    EXPECT_NE(body.find("\"event_number\"%3A\"1\""), std::string::npos);
}

TEST_F(StatStartup, CountsFromZeroWhenTheStoredNumberIsInvalid)
{
    storeCommon("ClientGuid=g\nEventStatEnabled=1\nLocation=DE\n");
    storeApplication(60, "EventNumber=many\n");
    startStatistics(60, false, runHere);
    EXPECT_NE(nextBody().find("\"event_number\"%3A\"1\""), std::string::npos);
}

TEST_F(StatStartup, CountsFromANumberWithWhatStandsAroundIt)
{
    storeCommon("ClientGuid=g\nEventStatEnabled=1\nLocation=DE\n");
    struct Case
    {
        const char* stored;
        const char* next;
    };
    for (const Case& c :
         {Case{"  41", "42"}, Case{"41  ", "42"}, Case{"\t41 events", "42"}, Case{" +41", "42"},
          Case{" -41 ", "%2D40"}, Case{"4 1", "5"}, Case{"- 41", "1"}, Case{" ", "1"}}) {
        SCOPED_TRACE(c.stored);
        storeApplication(60, std::string("EventNumber=") + c.stored + "\n");
        startStatistics(60, false, runHere);
        const std::string number = std::string("\"event_number\"%3A\"") + c.next + "\"";
        const std::string body = nextBody();
        EXPECT_NE(body.find(number), std::string::npos) << body;
    }
}

TEST_F(StatStartup, IsOffByDefaultButStillPrepares)
{
    storeCommon("");
    scripted::answerInOrder({{0, 200, "DE"}});
    startStatistics(60, false, runHere);
    EXPECT_EQ(AppStatHelper::instance().sendEvent("t", "s", "", "", true, 0), 0);
    EXPECT_EQ(contentOf(commonFile()), std::string("ClientGuid=") + guid + "\nLocation=DE\n");
}

TEST_F(StatStartup, AsksForTheCountryBeforeItCreatesTheGuid)
{
    storeCommon("ProxyAddress=gate\nProxyType=1\n");
    scripted::setServer([](const netpull::Request& request) {
        EXPECT_EQ(request.url, "https://geo.tessera.example/?instType=country");
        EXPECT_EQ(request.proxy.address, "gate");
        EXPECT_EQ(createdGuids(), 0);
        return netpull::Response{0, 200, "DE"};
    });
    startStatistics(60, false, runHere);
    EXPECT_EQ(scripted::requests().size(), 1U);
    EXPECT_EQ(createdGuids(), 1);
}

TEST_F(StatStartup, ContinuesWithoutACountry)
{
    storeCommon("EventStatEnabled=1\n");
    scripted::answerInOrder({{6, 0, ""}});
    startStatistics(60, false, runHere);
    const std::string body = nextBody();
    EXPECT_NE(body.find("\"country_id\"%3A\"\""), std::string::npos);
    EXPECT_NE(body.find("\"guid\"%3A\"01234567"), std::string::npos);
}

TEST_F(StatStartup, BlocksOnlyInTheRunner)
{
    storeCommon("EventStatEnabled=1\n");
    scripted::answerInOrder({{0, 200, "DE"}});
    storeApplication(60, "Version=1\n");
    startStatistics(60, false, [&](const std::function<void()>& call) {
        EXPECT_TRUE(scripted::requests().empty());
        EXPECT_EQ(createdGuids(), 0);
        call();
        EXPECT_EQ(scripted::requests().size(), 1U);
        EXPECT_EQ(contentOf(commonFile()),
                  std::string("ClientGuid=") + guid + "\nEventStatEnabled=1\nLocation=DE\n");
        // Reading or saving outside the runner would show from here on.
        std::filesystem::remove(commonFile());
        storeApplication(60, "Version=2\n");
    });
    EXPECT_FALSE(std::filesystem::exists(commonFile()));
    const std::string body = nextBody();
    EXPECT_NE(body.find("\"country_id\"%3A\"DE\""), std::string::npos);
    EXPECT_NE(body.find("\"guid\"%3A\"01234567"), std::string::npos);
    EXPECT_NE(body.find("\"ver\"%3A\"1\""), std::string::npos);
}
