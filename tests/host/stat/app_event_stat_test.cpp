#include "tests/host/stat/event_sender.h"

#include <limits>
#include <map>
#include <memory>
#include <vector>

using event_sender::memberOf;
using event_sender::status;

namespace {

using AppEventStat = event_sender::EventSender;
using Helper = event_sender::Helper;

} // namespace

TEST_F(AppEventStat, SendsNothingBeforeInit)
{
    EXPECT_EQ(sendNow(), 0);
    EXPECT_TRUE(scripted::requests().empty());
    EXPECT_TRUE(log().empty());
}

TEST_F(AppEventStat, SendsNothingWhenDisabled)
{
    helper.init(params, false, 7);
    EXPECT_EQ(sendNow(), 0);
    EXPECT_EQ(helper.sendEvent("click", "source", "", "", false, 42), 0);
    EXPECT_EQ(params->get("EVENT_NUMBER"), "");
    EXPECT_TRUE(scripted::requests().empty());
    EXPECT_TRUE(log().empty());
}

TEST_F(AppEventStat, SendsNothingWithoutParameters)
{
    helper.init(nullptr, true, 7);
    EXPECT_EQ(sendNow(), 0);
    EXPECT_TRUE(scripted::requests().empty());
}

TEST_F(AppEventStat, CountsFromTheStoredNumberAndKeepsGivenNumbers)
{
    scripted::answerInOrder(std::vector<netpull::Response>(5, status(200)));
    helper.init(params, true, 7);
    EXPECT_EQ(sendNow(), 8);
    EXPECT_EQ(sendNow(), 9);
    EXPECT_EQ(sendNow(), 10);
    EXPECT_EQ(helper.sendEvent("click", "source", "", "", true, 42), 42);
    EXPECT_EQ(sendNow(), 11);
    std::vector<std::string> sent;
    for (const netpull::Request& request : scripted::requests())
        sent.push_back(memberOf(request, "event_number"));
    EXPECT_EQ(sent, (std::vector<std::string>{"8", "9", "10", "42", "11"}));
}

TEST_F(AppEventStat, WritesNumberAndTestMarkToTheSharedParameters)
{
    scripted::answerInOrder({status(200)});
    helper.init(params, true, 0);
    sendNow();
    EXPECT_EQ(params->get("EVENT_NUMBER"), "1");
    EXPECT_EQ(params->get("TEST"), "0");
    EXPECT_EQ(params->get("SRC"), "");
}

TEST_F(AppEventStat, UsesTheValuesAtTheTimeOfTheCall)
{
    scripted::answerInOrder({status(200), status(200)});
    helper.init(params, true, 0);
    params->set("VER", "1", true);
    sendNow();
    params->set("VER", "2", true);
    sendNow();
    EXPECT_EQ(memberOf(scripted::requests()[0], "ver"), "1");
    EXPECT_EQ(memberOf(scripted::requests()[1], "ver"), "2");
}

TEST_F(AppEventStat, CountsOnFromTheLargestNumberToTheSmallest)
{
    scripted::answerInOrder({status(200)});
    helper.init(params, true, std::numeric_limits<int>::max());
    EXPECT_EQ(sendNow(), std::numeric_limits<int>::min());
}

TEST_F(AppEventStat, PostsTheFormToTheEventEndpoint)
{
    scripted::answerInOrder({status(200)});
    helper.init(params, true, 0);
    helper.sendEvent("show", "a b", "k", "x,y", true, 0);
    ASSERT_EQ(scripted::requests().size(), 1U);
    const netpull::Request request = scripted::requests()[0];
    EXPECT_EQ(request.url, "https://stats.tessera.example/AddEventJSONString.php");
    EXPECT_EQ(request.method, netpull::Method::post);
    EXPECT_EQ(request.headers,
              std::vector<std::string>{"Content-Type: application/x-www-form-urlencoded"});
    EXPECT_TRUE(request.verifyServer);
    EXPECT_EQ(request.httpVersion, 1);
    EXPECT_EQ(request.longestSeconds, 15);
    EXPECT_EQ(request.connectSeconds, 10);
    EXPECT_EQ(request.timeoutSeconds, 10);
    EXPECT_EQ(request.proxy.address, "");
    EXPECT_EQ(request.postData,
              "data=%7B\"guid\"%3A\"\"%2C\"country_id\"%3A\"\"%2C\"pid\"%3A\"\"%2C"
              "\"adv_type\"%3A\"\"%2C\"camp_type\"%3A\"\"%2C\"appid\"%3A\"\"%2C\"ver\"%3A\"\"%2C"
              "\"event_type\"%3A\"show\"%2C\"event_number\"%3A\"1\"%2C\"src\"%3A\"a%20b\"%2C"
              "\"info_type\"%3A\"k\"%2C\"info\"%3A\"x%2Cy\"%2C\"inst_type\"%3A\"\"%2C"
              "\"inst_ch\"%3A\"\"%2C\"inst_ref\"%3A\"\"%2C\"test\"%3A\"0\"%2C"
              "\"tc_build_num\"%3A\"\"%2C\"product_name\"%3A\"\"%2C\"id_lmc_keys\"%3A\"\"%7D");
}

TEST_F(AppEventStat, UsesTheConfiguredProxyForEveryPost)
{
    scripted::answerInOrder({status(200), status(200)});
    helper.init(params, true, 0);
    sendNow();
    storeCommon("ProxyAddress=gate\nProxyPort=3128\nProxyPw=secret\nProxyType=1\nProxyUser=ann\n");
    sendNow();
    EXPECT_EQ(scripted::requests()[0].proxy.address, "");
    const netpull::Proxy proxy = scripted::requests()[1].proxy;
    EXPECT_EQ(proxy.address, "gate");
    EXPECT_EQ(proxy.port, 3128);
    EXPECT_EQ(proxy.user, "ann");
    EXPECT_EQ(proxy.password, "secret");
}

TEST_F(AppEventStat, MarksTestEventsForTheExactValueOnly)
{
    const std::map<std::string, std::string> marks = {{"1", "1"}, {"11", "0"}, {"1 ", "0"},
                                                      {"", "0"},  {"0", "0"},  {"true", "0"}};
    for (const auto& [value, mark] : marks) {
        scripted::answerInOrder({status(200)});
        setEnvironment("SET_TEST_STAT_HOST", value);
        Helper fresh;
        fresh.init(params, true, 0);
        fresh.sendEvent("t", "s", "", "", true, 0);
        ASSERT_EQ(scripted::requests().size(), 1U);
        EXPECT_EQ(memberOf(scripted::requests()[0], "test"), mark) << "value \"" << value << "\"";
        EXPECT_EQ(scripted::requests()[0].url,
                  "https://stats.tessera.example/AddEventJSONString.php");
    }
}

TEST_F(AppEventStat, KeepsTheTestMarkOfAnEarlierInit)
{
    scripted::answerInOrder({status(200)});
    setEnvironment("SET_TEST_STAT_HOST", "1");
    helper.init(params, true, 0);
    setEnvironment("SET_TEST_STAT_HOST", "0");
    helper.init(params, true, 0);
    sendNow();
    EXPECT_EQ(memberOf(scripted::requests()[0], "test"), "1");
}

TEST_F(AppEventStat, LogsADeliveredEvent)
{
    for (const int httpStatus : {200, 204, 301, 399, 0}) {
        setLogLevel(Keelbase::levelDetail);
        scripted::answerInOrder({status(httpStatus, "whatever")});
        helper.init(params, true, 0);
        sendNow();
        EXPECT_EQ(log(),
                  std::vector<std::string>{
                      "7 AppEventStat ui/common/stat/app_event_stat:71 stats::sendEvent: ok"})
            << httpStatus;
        EXPECT_EQ(scripted::requests().size(), 1U) << httpStatus;
    }
}

TEST_F(AppEventStat, LogsATransportErrorAndDoesNotRepeat)
{
    scripted::answerInOrder({{28, 500, "half"}});
    helper.init(params, true, 0);
    EXPECT_EQ(sendNow(), 1);
    EXPECT_EQ(scripted::requests().size(), 1U);
    EXPECT_EQ(log(),
              std::vector<std::string>{
                  "7 AppEventStat ui/common/stat/app_event_stat:68 stats::sendEvent: curl 28"});
}

TEST_F(AppEventStat, RepeatsARejectedPostOnceAndLogsNothingWhenThatIsAccepted)
{
    scripted::answerInOrder({status(500, "first"), status(200)});
    helper.init(params, true, 0);
    sendNow();
    ASSERT_EQ(scripted::requests().size(), 2U);
    EXPECT_EQ(scripted::requests()[0].postData, scripted::requests()[1].postData);
    EXPECT_EQ(scripted::requests()[1].timeoutSeconds, 10);
    EXPECT_TRUE(log().empty());
}

TEST_F(AppEventStat, LogsTheSecondRejection)
{
    scripted::answerInOrder({status(503, "first"), status(404, "second body")});
    helper.init(params, true, 0);
    sendNow();
    EXPECT_EQ(scripted::requests().size(), 2U);
    EXPECT_EQ(log(), std::vector<std::string>{"3 AppEventStat ui/common/stat/app_event_stat:65 "
                                              "stats::sendEvent rejected: http 404 | second body"});
}

TEST_F(AppEventStat, RejectsFromStatus400)
{
    scripted::answerInOrder({status(400, "first"), status(400, "second")});
    helper.init(params, true, 0);
    sendNow();
    EXPECT_EQ(log(), std::vector<std::string>{"3 AppEventStat ui/common/stat/app_event_stat:65 "
                                              "stats::sendEvent rejected: http 400 | second"});
}

TEST_F(AppEventStat, LogsNothingWhenTheRepeatFailsInTransport)
{
    scripted::answerInOrder({status(503, "first"), {56, 503, "half"}});
    helper.init(params, true, 0);
    sendNow();
    EXPECT_EQ(scripted::requests().size(), 2U);
    EXPECT_TRUE(log().empty());
}

TEST_F(AppEventStat, LogsOnlyTheRejectionAtTheUsualLevel)
{
    setLogLevel(Keelbase::levelInformation);
    scripted::answerInOrder({status(200), {6, 0, {}}, status(500), status(500, "no")});
    helper.init(params, true, 0);
    sendNow();
    sendNow();
    sendNow();
    ASSERT_EQ(log().size(), 1U);
    EXPECT_NE(log()[0].find("rejected: http 500 | no"), std::string::npos);
}

TEST_F(AppEventStat, IsOneObjectForTheProcess)
{
    EXPECT_EQ(&stats::AppStatHelper::instance(), &stats::AppStatHelper::instance());
}
