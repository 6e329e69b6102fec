#include "ui/uninstall/src/dialog_actions.h"

namespace uninstall {

std::vector<DialogAction> dialogActions(int code, const std::string& name)
{
    switch (code) {
    case dialog_event::shown:
        return {DialogAction::sendShow};
    case dialog_event::surveyLicense:
    case dialog_event::surveyQuality:
    case dialog_event::surveyFeatures:
        // The second click says that the offer after the answer has been dealt with; evaluation
        // pairs the two.
        return {DialogAction::sendClick, DialogAction::showOffer, DialogAction::sendClick};
    case dialog_event::storeOpened:
        return {DialogAction::openStore, DialogAction::sendClick};
    case dialog_event::closed:
        // A skipped survey has no close of its own, only the click after the offer.
        if (name == surveySkipped)
            return {DialogAction::showOffer, DialogAction::sendClick};
        return {DialogAction::sendClose};
    default:
        return {};
    }
}

} // namespace uninstall
