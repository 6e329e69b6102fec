#include "tests/host/stat/stat_fixture.h"
#include "ui/common/stat/http_post_form.h"
#include "ui/common/stat/proxy_settings.h"

namespace {

class HttpPostForm : public StatTest
{
protected:
    netpull::Request requestWithTimeout(int timeoutSeconds)
    {
        scripted::answerInOrder({{0, 200, {}}});
        stats::httpPostForm("https://h/p", "b", timeoutSeconds);
        return scripted::requests().at(0);
    }
};

class ReadProxySettings : public StatTest
{};

} // namespace

TEST_F(HttpPostForm, UsesTheDefaultTimeoutBelowOneSecond)
{
    EXPECT_EQ(requestWithTimeout(0).timeoutSeconds, 10);
    EXPECT_EQ(requestWithTimeout(-5).timeoutSeconds, 10);
    EXPECT_EQ(requestWithTimeout(0).longestSeconds, 15);
}

TEST_F(HttpPostForm, RaisesTheLongestDurationWithALongTimeout)
{
    EXPECT_EQ(requestWithTimeout(1).timeoutSeconds, 1);
    EXPECT_EQ(requestWithTimeout(1).longestSeconds, 15);
    EXPECT_EQ(requestWithTimeout(15).longestSeconds, 15);
    EXPECT_EQ(requestWithTimeout(40).timeoutSeconds, 40);
    EXPECT_EQ(requestWithTimeout(40).longestSeconds, 40);
}

TEST_F(HttpPostForm, ReturnsTheAnswer)
{
    scripted::answerInOrder({{7, 418, "text"}});
    const stats::StatsPostResult result = stats::httpPostForm("https://h/p", "b", 0);
    EXPECT_EQ(result.transportCode, 7);
    EXPECT_EQ(result.httpStatus, 418);
    EXPECT_EQ(result.body, "text");
}

TEST_F(ReadProxySettings, AreOffWithoutAType)
{
    storeCommon("ProxyAddress=gate\nProxyPort=3128\nProxyUser=ann\nProxyPw=secret\n");
    EXPECT_EQ(stats::readProxySettings().address, "");
    EXPECT_EQ(stats::readProxySettings().port, 80);
    EXPECT_EQ(stats::readProxySettings().user, "");
    EXPECT_EQ(stats::readProxySettings().password, "");
}

TEST_F(ReadProxySettings, AreOffForTypeZeroAndForATypeThatIsNoNumber)
{
    for (const std::string type : {"0", "", "http", " 0", "0x1"}) {
        storeCommon("ProxyAddress=gate\nProxyType=" + type + "\n");
        EXPECT_EQ(stats::readProxySettings().address, "") << "type \"" << type << "\"";
    }
}

TEST_F(ReadProxySettings, AreOnForEveryOtherType)
{
    for (const std::string type : {"1", "2", "-1", "3socks", " 7", "99999999999"}) {
        storeCommon("ProxyAddress=gate\nProxyType=" + type + "\n");
        EXPECT_EQ(stats::readProxySettings().address, "gate") << "type \"" << type << "\"";
    }
}

TEST_F(ReadProxySettings, UsePort80WhenNoneIsStored)
{
    storeCommon("ProxyAddress=gate\nProxyType=1\n");
    EXPECT_EQ(stats::readProxySettings().port, 80);
    storeCommon("ProxyAddress=gate\nProxyPort=\nProxyType=1\n");
    EXPECT_EQ(stats::readProxySettings().port, 80);
}

TEST_F(ReadProxySettings, KeepTheStoredValuesUnchanged)
{
    storeCommon(
        "ProxyAddress= gate \nProxyPort=8080x\nProxyPw= p=w \nProxyType=1\nProxyUser=\xC3\xA4\n");
    const stats::ProxySettings proxy = stats::readProxySettings();
    EXPECT_EQ(proxy.address, " gate ");
    EXPECT_EQ(proxy.port, 8080);
    EXPECT_EQ(proxy.user, "\xC3\xA4");
    EXPECT_EQ(proxy.password, " p=w ");
}

TEST_F(ReadProxySettings, ReadAPortThatIsNoNumberAsZero)
{
    storeCommon("ProxyAddress=gate\nProxyPort=web\nProxyType=1\n");
    EXPECT_EQ(stats::readProxySettings().port, 0);
}
