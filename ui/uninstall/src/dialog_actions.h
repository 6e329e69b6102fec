#pragma once

// What the main window does with the events that the exit survey and the store offer report.
// Pure; any thread.

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

// The name under which the survey reports that it was closed without an answer. The offer, which
// uses the same code, reports its own event name.
constexpr const char* surveySkipped = "skip";

enum class DialogAction {
    sendShow, // a statistics event "show" with the dialog event's name; and so on
    sendClick,
    sendClose,
    showOffer, // runs the store offer until it is closed
    openStore, // opens the offered partner's page in the Microsoft Store
};

// The actions for one event, in order. Empty for codes that mean nothing to the main window.
std::vector<DialogAction> dialogActions(int code, const std::string& name);

} // namespace uninstall
