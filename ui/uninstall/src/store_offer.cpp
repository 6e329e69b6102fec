#include "ui/uninstall/src/store_offer.h"

#include "ui/uninstall/src/app_catalogue.h"

namespace uninstall {
namespace {

constexpr int clipSaverId = 60;
constexpr int trackSaverId = 61;

constexpr StorePartner videoPartner{64, "XP9EXAMPLE0064", OfferText::videoDownloader};
constexpr StorePartner musicPartner{65, "XP9EXAMPLE0065", OfferText::musicDownloader};

bool hasMusicOfferFlag(int id)
{
    return id == clipSaverId || id == trackSaverId;
}

} // namespace

std::string musicOfferFlag(int uninstalledId, bool exitMode)
{
    if (!hasMusicOfferFlag(uninstalledId))
        return {};
    return shortCode(uninstalledId) + (exitMode ? "_t149_exit_ms_" : "_uninst_ms_") +
           shortCode(musicPartner.id) + "_enabled";
}

const StorePartner& choosePartner(int uninstalledId, bool musicOfferEnabled)
{
    return hasMusicOfferFlag(uninstalledId) && musicOfferEnabled ? musicPartner : videoPartner;
}

std::string offerEventName(int partnerId, bool exitMode)
{
    // The first partner's events had no partner in their name, and reports still expect that.
    std::string name = "offer_install_ms_store";
    if (partnerId < videoPartner.id)
        name += "_unknown";
    else if (partnerId > videoPartner.id)
        name += "_" + shortCode(partnerId);
    if (exitMode)
        name += "_on_exit";
    return name;
}

std::string storeAddress(const std::string& productId)
{
    return "ms-windows-store://pdp/?ProductId=" + productId + "&cid=lmc_uninstall";
}

} // namespace uninstall
