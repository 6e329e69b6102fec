#pragma once

// What the main window does about events of the exit survey and the store offer. Pure; any thread.

#include <string>
#include <vector>

namespace uninstall {

// Event codes of both dialogs. A dialog reports `shown` once, from its constructor.
namespace dialog_event {
constexpr int surveyLicense = 1;
constexpr int surveyQuality = 2;
constexpr int surveyFeatures = 3;
constexpr int storeOpened = 4;
constexpr int closed = 6;
constexpr int shown = 10;
} // namespace dialog_event

// The name that the survey reports with `closed`, when it is closed without an answer. The offer
// reports its own event name with that code.
constexpr const char* surveySkipped = "skip";

enum class DialogAction {
    // A statistics event "show", "click" or "close" with the dialog event's name.
    sendShow,
    sendClick,
    sendClose,
    showOffer, // runs the store offer until it is closed
    openStore, // opens the offered partner's page in the Microsoft Store
};

// The actions for one event, in order; none for other codes.
std::vector<DialogAction> dialogActions(int code, const std::string& name);

} // namespace uninstall
