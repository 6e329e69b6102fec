#include "tests/host/stat/stat_fixture.h"
#include "ui/common/stat/install_identity.h"

using stats::fillInstallParams;
using stats::getOrCreateClientGuid;
using stats::TemplateParams;

namespace {

class ClientGuid : public StatTest
{};

class InstallParams : public StatTest
{
protected:
    TemplateParams filledFrom(const std::string& text)
    {
        storeApplication(60, text);
        fs::CConfig application;
        application.setFileName(applicationFile(60).wstring());
        application.load();
        TemplateParams params;
        params.set("CAMPTYPE", "from before", true);
        fillInstallParams(params, application);
        return params;
    }
};

} // namespace

TEST_F(ClientGuid, IsTheStoredOne)
{
    storeCommon("ClientGuid=stored\n");
    EXPECT_EQ(getOrCreateClientGuid(common()), "stored");
    EXPECT_EQ(createdGuids(), 0);
}

TEST_F(ClientGuid, IsTheStoredOneEvenWhenEmpty)
{
    storeCommon("ClientGuid=\nLanguage=de\n");
    EXPECT_EQ(getOrCreateClientGuid(common()), "");
    EXPECT_EQ(createdGuids(), 0);
    EXPECT_EQ(contentOf(commonFile()), "ClientGuid=\nLanguage=de\n") << "nothing is saved";
}

TEST_F(ClientGuid, IsCreatedOnceAndSavedImmediately)
{
    storeCommon("Language=de\n");
    const std::string guid = getOrCreateClientGuid(common());
    EXPECT_EQ(guid, "01234567-89ab-4cde-8f01-23456789abcd");
    EXPECT_EQ(contentOf(commonFile()), "ClientGuid=" + guid + "\nLanguage=de\n");
    setNextGuid("another");
    EXPECT_EQ(getOrCreateClientGuid(common()), guid);
    common().reload();
    EXPECT_EQ(getOrCreateClientGuid(common()), guid);
    EXPECT_EQ(createdGuids(), 1);
}

TEST_F(ClientGuid, IsCreatedWhenThereIsNoFile)
{
    const std::string guid = getOrCreateClientGuid(common());
    EXPECT_EQ(contentOf(commonFile()), "ClientGuid=" + guid + "\n");
}

TEST_F(ClientGuid, IsEmptyAndNotRetriedWhenCreationFails)
{
    setNextGuid("");
    EXPECT_EQ(getOrCreateClientGuid(common()), "");
    EXPECT_EQ(getOrCreateClientGuid(common()), "");
    EXPECT_EQ(createdGuids(), 1);
}

TEST_F(InstallParams, AreTheStoredValues)
{
    const TemplateParams params =
        filledFrom("AdvType=adv\nCampType=camp\nInstType= type \nInstChannel=channel\n"
                   "InstRef=a=b\nTCBuildNum=77\n");
    EXPECT_EQ(params.get("ADVTYPE"), "adv");
    EXPECT_EQ(params.get("CAMPTYPE"), "camp");
    EXPECT_EQ(params.get("INSTTYPE"), " type ");
    EXPECT_EQ(params.get("INSTCH"), "channel");
    EXPECT_EQ(params.get("INSTREF"), "a=b");
    EXPECT_EQ(params.get("TC_BUILD_NUM"), "77");
}

TEST_F(InstallParams, AreKnownAndEmptyWhenNothingIsStored)
{
    const TemplateParams params = filledFrom("");
    EXPECT_EQ(params.expand("{ADVTYPE}{CAMPTYPE}{INSTTYPE}{INSTCH}{INSTREF}{TC_BUILD_NUM}", false)
                  .unresolvedCount,
              0);
    EXPECT_EQ(params.get("CAMPTYPE"), "") << "a present value is replaced";
}

TEST_F(InstallParams, ReplaceWhatTheSetHeldBefore)
{
    const std::vector<std::string> names{"ADVTYPE", "CAMPTYPE", "INSTTYPE",
                                         "INSTCH",  "INSTREF",  "TC_BUILD_NUM"};
    TemplateParams params;
    for (const std::string& name : names)
        params.set(name, "before", true);
    fillInstallParams(params, fs::CConfig());
    for (const std::string& name : names)
        EXPECT_EQ(params.get(name), "") << name;
}

TEST_F(InstallParams, MarkTheAdvertisementTypeInDebugRuns)
{
    setEnvironment("CV_DEBUG", "1");
    EXPECT_EQ(filledFrom("AdvType=adv\nCampType=camp\n").get("ADVTYPE"), "adv_DBG");
    EXPECT_EQ(filledFrom("").get("ADVTYPE"), "_DBG");
    EXPECT_EQ(filledFrom("CampType=camp\n").get("CAMPTYPE"), "camp");
}

TEST_F(InstallParams, DoNotMarkForAnyOtherValue)
{
    for (const std::string value : {"11", "", "0", "true", " 1"}) {
        setEnvironment("CV_DEBUG", value);
        EXPECT_EQ(filledFrom("AdvType=adv\n").get("ADVTYPE"), "adv") << "\"" << value << "\"";
    }
}
