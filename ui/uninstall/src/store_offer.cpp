#include "ui/uninstall/src/store_offer.h"

#include "ui/common/config/common_config.h"
#include "ui/uninstall/src/app_catalogue.h"

namespace uninstall {
namespace {

constexpr StorePartner videoPartner{64, "XP9EXAMPLE0064", OfferText::videoDownloader};
constexpr StorePartner musicPartner{65, "XP9EXAMPLE0065", OfferText::musicDownloader};

} // namespace

std::string musicOfferFlag(int uninstalledId, bool exitMode)
{
    if (!hasExitSurvey(uninstalledId))
        return {};
    return shortCode(uninstalledId) + (exitMode ? "_t149_exit_ms_" : "_uninst_ms_") +
           shortCode(musicPartner.id) + "_enabled";
}

const StorePartner& choosePartner(int uninstalledId, bool musicOfferEnabled)
{
    return hasExitSurvey(uninstalledId) && musicOfferEnabled ? musicPartner : videoPartner;
}

const StorePartner& partnerFor(int uninstalledId, bool exitMode)
{
    const std::string flag = musicOfferFlag(uninstalledId, exitMode);
    return choosePartner(uninstalledId, fs::commonConfig().getBool(flag, false));
}

std::string offerEventName(int partnerId, bool exitMode)
{
    // A deliberate oddity: the video partner's events carry no code.
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
