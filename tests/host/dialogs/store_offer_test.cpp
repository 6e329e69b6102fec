#include "ui/common/config/common_config.h"
#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/store_offer.h"

#include <gtest/gtest.h>

namespace {

using uninstall::choosePartner;
using uninstall::musicOfferFlag;
using uninstall::offerEventName;
using uninstall::OfferText;
using uninstall::partnerFor;
using uninstall::storeAddress;

TEST(StoreOffer, TheFlagIsNamedByBothShortCodes)
{
    EXPECT_EQ(musicOfferFlag(60, false), "clsv_uninst_ms_msldl_enabled");
    EXPECT_EQ(musicOfferFlag(61, false), "trksv_uninst_ms_msldl_enabled");
}

TEST(StoreOffer, AnOfferOnExitHasItsOwnFlag)
{
    EXPECT_EQ(musicOfferFlag(60, true), "clsv_t149_exit_ms_msldl_enabled");
    EXPECT_EQ(musicOfferFlag(61, true), "trksv_t149_exit_ms_msldl_enabled");
}

TEST(StoreOffer, OnlyTheSurveyApplicationsHaveAFlag)
{
    for (int id = -2; id <= 100; ++id) {
        if (id == 60 || id == 61)
            continue;
        EXPECT_EQ(musicOfferFlag(id, false), "") << id;
        EXPECT_EQ(musicOfferFlag(id, true), "") << id;
    }
}

TEST(StoreOffer, TheFlagChoosesTheMusicPartner)
{
    for (const int id : {60, 61}) {
        EXPECT_EQ(choosePartner(id, true).id, 65) << id;
        EXPECT_EQ(choosePartner(id, false).id, 64) << id;
    }
}

TEST(StoreOffer, OtherApplicationsAreOfferedTheVideoPartnerWhateverTheFlag)
{
    for (const int id : {-1, 0, 2, 53, 59, 62, 64, 65, 68, 1000}) {
        EXPECT_EQ(choosePartner(id, true).id, 64) << id;
        EXPECT_EQ(choosePartner(id, false).id, 64) << id;
    }
}

TEST(StoreOffer, TheFlagIsReadFromTheSettingsForEachOffer)
{
    fs::CConfig& common = fs::commonConfig();
    common.setFileName(L"");
    EXPECT_EQ(partnerFor(60, false).id, 64);
    common.setValue("clsv_uninst_ms_msldl_enabled", "1");
    common.setValue("", "1");
    EXPECT_EQ(partnerFor(60, false).id, 65);
    EXPECT_EQ(partnerFor(60, true).id, 64);
    EXPECT_EQ(partnerFor(61, false).id, 64);
    EXPECT_EQ(partnerFor(2, false).id, 64);
    common.setValue("clsv_uninst_ms_msldl_enabled", "0");
    common.setValue("trksv_t149_exit_ms_msldl_enabled", "1");
    EXPECT_EQ(partnerFor(60, false).id, 64);
    EXPECT_EQ(partnerFor(61, true).id, 65);
    common.setFileName(L"");
}

TEST(StoreOffer, EachPartnerHasItsProductAndText)
{
    const auto& video = choosePartner(60, false);
    EXPECT_STREQ(video.productId, "XP9EXAMPLE0064");
    EXPECT_EQ(video.text, OfferText::videoDownloader);
    EXPECT_EQ(uninstall::displayName(video.id, true), "Vidalo Downloader");

    const auto& music = choosePartner(60, true);
    EXPECT_STREQ(music.productId, "XP9EXAMPLE0065");
    EXPECT_EQ(music.text, OfferText::musicDownloader);
    EXPECT_EQ(uninstall::displayName(music.id, true), "Musalo Downloader");
}

TEST(StoreOffer, EventNameOfTheFirstPartnerHasNoSuffix)
{
    EXPECT_EQ(offerEventName(64, false), "offer_install_ms_store");
    EXPECT_EQ(offerEventName(64, true), "offer_install_ms_store_on_exit");
}

TEST(StoreOffer, EventNameOfALaterPartnerEndsInItsShortCode)
{
    EXPECT_EQ(offerEventName(65, false), "offer_install_ms_store_msldl");
    EXPECT_EQ(offerEventName(65, true), "offer_install_ms_store_msldl_on_exit");
    EXPECT_EQ(offerEventName(1000, false), "offer_install_ms_store_unkn");
}

TEST(StoreOffer, EventNameBelowThePartnersIsUnknown)
{
    for (const int id : {63, 60, 0, -1})
        EXPECT_EQ(offerEventName(id, false), "offer_install_ms_store_unknown") << id;
    EXPECT_EQ(offerEventName(63, true), "offer_install_ms_store_unknown_on_exit");
}

TEST(StoreOffer, StoreAddressNamesProductAndCampaign)
{
    EXPECT_EQ(storeAddress("ABCDEFGHIJKLMN"),
              "ms-windows-store://pdp/?ProductId=ABCDEFGHIJKLMN&cid=lmc_uninstall");
}

} // namespace
