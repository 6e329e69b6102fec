#include "ui/uninstall/src/dialog_actions.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using uninstall::DialogAction;
using uninstall::dialogActions;

TEST(DialogActions, ADialogThatAppearsIsSentAsShow)
{
    EXPECT_THAT(dialogActions(10, "uninstall_quiz"), ElementsAre(DialogAction::sendShow));
    EXPECT_THAT(dialogActions(10, "offer_install_ms_store"), ElementsAre(DialogAction::sendShow));
}

TEST(DialogActions, EveryAnswerIsSentAsClickBeforeAndAfterTheOffer)
{
    for (const int code : {1, 2, 3}) {
        EXPECT_THAT(
            dialogActions(code, "uninstall_quiz_license"),
            ElementsAre(DialogAction::sendClick, DialogAction::showOffer, DialogAction::sendClick))
            << code;
    }
}

TEST(DialogActions, ASkippedSurveyLeadsToTheOfferWithoutAClose)
{
    EXPECT_THAT(dialogActions(6, "skip"),
                ElementsAre(DialogAction::showOffer, DialogAction::sendClick));
}

TEST(DialogActions, AClosedOfferIsSentAsClose)
{
    for (const char* name : {"offer_install_ms_store", "offer_install_ms_store_msldl", "", "Skip"})
        EXPECT_THAT(dialogActions(6, name), ElementsAre(DialogAction::sendClose)) << name;
}

TEST(DialogActions, TheStoreIsOpenedBeforeItsClick)
{
    EXPECT_THAT(dialogActions(4, "offer_install_ms_store"),
                ElementsAre(DialogAction::openStore, DialogAction::sendClick));
}

TEST(DialogActions, OtherCodesAreIgnored)
{
    for (const int code : {-2147483647 - 1, -1, 0, 5, 7, 8, 9, 11, 12, 100, 2147483647})
        EXPECT_THAT(dialogActions(code, "skip"), IsEmpty()) << code;
}

TEST(DialogActions, OnlyClosingDependsOnTheName)
{
    EXPECT_THAT(dialogActions(10, "skip"), ElementsAre(DialogAction::sendShow));
    EXPECT_THAT(dialogActions(4, "skip"),
                ElementsAre(DialogAction::openStore, DialogAction::sendClick));
}

} // namespace
