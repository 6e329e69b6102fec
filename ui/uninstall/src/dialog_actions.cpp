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
        // A deliberate oddity: the click is reported again after the offer.
        return {DialogAction::sendClick, DialogAction::showOffer, DialogAction::sendClick};
    case dialog_event::storeOpened:
        return {DialogAction::openStore, DialogAction::sendClick};
    case dialog_event::closed:
        // A deliberate oddity: a skipped survey reports no "close" but a click after the offer.
        if (name == surveySkipped)
            return {DialogAction::showOffer, DialogAction::sendClick};
        return {DialogAction::sendClose};
    default:
        return {};
    }
}

} // namespace uninstall
