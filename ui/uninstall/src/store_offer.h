#pragma once

// The store offer: which partner application is offered after an exit survey, and its names in
// settings, statistics and the Microsoft Store. Any thread.

#include <string>

namespace uninstall {

// The two wordings of the offer's dialog.
enum class OfferText { videoDownloader, musicDownloader };

// A partner application in the Microsoft Store. Name and short code are the catalogue's.
struct StorePartner
{
    int id;
    const char* productId; // the store's own id, always 14 characters
    OfferText text;
};

// The configuration key that switches the music offer on for the application being uninstalled.
// `exitMode` selects the key for offers made when the application is closed. Empty for applications
// without such a key.
std::string musicOfferFlag(int uninstalledId, bool exitMode);

// The partner offered when `uninstalledId` is uninstalled. `musicOfferEnabled` is the value of
// musicOfferFlag(); it counts only for applications that have such a key.
const StorePartner& choosePartner(int uninstalledId, bool musicOfferEnabled);

// The same, with the present value of the key in common.cfg.
const StorePartner& partnerFor(int uninstalledId, bool exitMode);

// The offer's name in statistics events.
std::string offerEventName(int partnerId, bool exitMode);

// The address that opens a product's page in the Microsoft Store.
std::string storeAddress(const std::string& productId);

} // namespace uninstall
