#include "tests/host/stat/stat_fixture.h"
#include "ui/common/stat/user_location.h"
#include "ui/common/sys/result_codes.h"

#include <stdexcept>

using stats::getOrCreateUserLocation;
using stats::getUserCountry;
using stats::getUserLocation;

namespace {

const std::string skipped = "6 MainForm ui/uninstall/src/widget:152 getOrCreateUserLocation | "
                            "CV_DEBUG_WITHOUT_UPDATE_LOCATION is true";
const std::string returnedError = "3 MainForm ui/uninstall/src/widget:160 getOrCreateUserLocation "
                                  "| dlutil_getUserLocation returned error";
const std::string found = "6 MainForm ui/uninstall/src/widget:164 getOrCreateUserLocation | ";
const std::string failed =
    "3 MainForm ui/uninstall/src/widget:170 Failed to dlutil_getUserLocation()";

using Lines = std::vector<std::string>;

class UserLocation : public StatTest
{
protected:
    stats::ProxySettings proxy{"gate", 3128, "ann", "secret"};
};

} // namespace

TEST_F(UserLocation, IsRequestedByAPlainGetThroughTheProxy)
{
    scripted::answerInOrder({{0, 200, "DE"}});
    sys::DataBuff answer;
    EXPECT_EQ(getUserLocation(answer, proxy), sys::success);
    EXPECT_EQ(answer.toString(), "DE");
    const netpull::Request request = scripted::requests().at(0);
    EXPECT_EQ(request.url, "https://geo.tessera.example/?instType=country");
    EXPECT_EQ(request.method, netpull::Method::get);
    EXPECT_EQ(request.postData, "");
    EXPECT_TRUE(request.headers.empty());
    EXPECT_EQ(request.timeoutSeconds, 15);
    EXPECT_EQ(request.longestSeconds, 15);
    EXPECT_TRUE(request.verifyServer);
    EXPECT_EQ(request.proxy.address, "gate");
    EXPECT_EQ(request.proxy.port, 3128);
    EXPECT_EQ(request.proxy.user, "ann");
    EXPECT_EQ(request.proxy.password, "secret");
}

TEST_F(UserLocation, ReturnsTheTransportCode)
{
    scripted::answerInOrder({{6, 0, "partial"}});
    sys::DataBuff answer;
    EXPECT_EQ(getUserLocation(answer, proxy), 6);
    EXPECT_TRUE(answer.empty());
}

TEST_F(UserLocation, TreatsAnEmptyAnswerAsAnError)
{
    scripted::answerInOrder({{0, 200, ""}});
    sys::DataBuff answer;
    EXPECT_EQ(getUserLocation(answer, proxy), 100009);
}

TEST_F(UserLocation, TakesAnyStatusWithABodyForAnAnswer)
{
    scripted::answerInOrder({{0, 404, "not here"}});
    EXPECT_EQ(getUserCountry(proxy), "not here");
    EXPECT_EQ(contentOf(commonFile()), "Location=not here\n");
}

TEST_F(UserLocation, IsStoredUnchangedAndLogged)
{
    storeCommon("Language=de\n");
    scripted::answerInOrder({{0, 200, " dE "}});
    getOrCreateUserLocation(proxy);
    EXPECT_EQ(contentOf(commonFile()), "Language=de\nLocation= dE \n");
    EXPECT_EQ(log(), Lines{found + " dE "});
}

TEST_F(UserLocation, OfSeveralLinesBecomesSeveralLinesOfTheFile)
{
    scripted::answerInOrder({{0, 200, "DE\nLanguage=fr\r\nno pair"}});
    EXPECT_EQ(getUserCountry(proxy), "DE\nLanguage=fr\r\nno pair");
    EXPECT_EQ(contentOf(commonFile()), "Location=DE\nLanguage=fr\r\nno pair\n");
    fs::CConfig next;
    next.setFileName(commonFile().wstring());
    ASSERT_EQ(next.load(), 0);
    EXPECT_EQ(next.getValue("Location", ""), "DE");
    EXPECT_EQ(next.getValue("Language", ""), "fr");
}

TEST_F(UserLocation, EndsAtANulByteSoThatLaterKeysSurvive)
{
    storeCommon("Version=1\n");
    scripted::answerInOrder({{0, 200, std::string("DE\0junk", 7)}});
    EXPECT_EQ(getUserCountry(proxy), "DE");
    EXPECT_EQ(contentOf(commonFile()), "Location=DE\nVersion=1\n");
}

TEST_F(UserLocation, KeepsTheStoredOneWhenTheLookupFails)
{
    storeCommon("Location=FR\n");
    scripted::answerInOrder({{28, 0, ""}});
    getOrCreateUserLocation(proxy);
    EXPECT_EQ(common().getValue("Location", ""), "FR");
    EXPECT_EQ(contentOf(commonFile()), "Location=FR\n");
    EXPECT_EQ(log(), Lines{returnedError});
}

TEST_F(UserLocation, IsReplacedByADirectRequest)
{
    storeCommon("Location=FR\n");
    scripted::answerInOrder({{0, 200, "DE"}});
    getOrCreateUserLocation(proxy);
    EXPECT_EQ(contentOf(commonFile()), "Location=DE\n");
}

TEST_F(UserLocation, StaysWithTheDebugSwitch)
{
    storeCommon("Location=FR\n");
    setEnvironment("CV_DEBUG_WITHOUT_UPDATE_LOCATION", "1");
    getOrCreateUserLocation(proxy);
    EXPECT_TRUE(scripted::requests().empty());
    EXPECT_EQ(log(), Lines{skipped});
}

TEST_F(UserLocation, IsRequestedDespiteTheDebugSwitchWhenNoneIsStored)
{
    setEnvironment("CV_DEBUG_WITHOUT_UPDATE_LOCATION", "1");
    for (const std::string content : {"", "Location=\n"}) {
        storeCommon(content);
        scripted::answerInOrder({{0, 200, "DE"}});
        getOrCreateUserLocation(proxy);
        EXPECT_EQ(scripted::requests().size(), 1U);
        EXPECT_EQ(common().getValue("Location", ""), "DE");
    }
}

TEST_F(UserLocation, IsRequestedWithAnyOtherValueOfTheDebugSwitch)
{
    for (const std::string value : {"11", "", "0", "true"}) {
        storeCommon("Location=FR\n");
        setEnvironment("CV_DEBUG_WITHOUT_UPDATE_LOCATION", value);
        scripted::answerInOrder({{0, 200, "DE"}});
        getOrCreateUserLocation(proxy);
        EXPECT_EQ(scripted::requests().size(), 1U) << "\"" << value << "\"";
    }
}

TEST_F(UserLocation, IsNotStoredWhenTheLookupThrows)
{
    storeCommon("Location=FR\n");
    scripted::setServer(
        [](const netpull::Request&) -> netpull::Response { throw std::runtime_error("broken"); });
    getOrCreateUserLocation(proxy);
    EXPECT_EQ(common().getValue("Location", ""), "FR");
    EXPECT_EQ(log(), Lines{failed});
}

TEST_F(UserLocation, LogsOnlyErrorsAtLevel3)
{
    setLogLevel(Keelbase::levelError);
    scripted::answerInOrder({{0, 200, "DE"}, {6, 0, ""}});
    getOrCreateUserLocation(proxy);
    EXPECT_TRUE(log().empty());
    getOrCreateUserLocation(proxy);
    EXPECT_EQ(log(), Lines{returnedError});
}

TEST_F(UserLocation, CountryIsTheStoredOneWithoutARequest)
{
    storeCommon("Location=FR\n");
    EXPECT_EQ(getUserCountry(proxy), "FR");
    EXPECT_TRUE(scripted::requests().empty());
    EXPECT_TRUE(log().empty());
}

TEST_F(UserLocation, CountryIsRequestedOnceWhenNoneIsStored)
{
    scripted::answerInOrder({{0, 200, "DE"}});
    EXPECT_EQ(getUserCountry(proxy), "DE");
    EXPECT_EQ(getUserCountry(proxy), "DE");
    EXPECT_EQ(log(), Lines{found + "DE"});
}

TEST_F(UserLocation, CountryIsEmptyWhenTheLookupFails)
{
    scripted::answerInOrder({{7, 0, ""}});
    EXPECT_EQ(getUserCountry(proxy), "");
    EXPECT_FALSE(std::filesystem::exists(commonFile()));
}
