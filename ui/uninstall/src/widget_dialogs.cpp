// The dialogs of the main window: the exit survey, the store offer that follows it, and what their
// events lead to.

#include "ui/common/config/common_config.h"
#include "ui/common/stat/app_event_stat.h"
#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/dialog_actions.h"
#include "ui/uninstall/src/fvd_open_ms_dlg.h"
#include "ui/uninstall/src/main_form_log.h"
#include "ui/uninstall/src/question_dlg.h"
#include "ui/uninstall/src/store_offer.h"
#include "ui/uninstall/src/widget.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

constexpr Keelbase::LogSource dialogsLog{"MainForm", "ui/uninstall/src/widget_dialogs"};

// Survey and offer belong to the uninstaller, not to an application that is being closed.
constexpr bool notOnExit = false;

int surveysOpened = 0;

void sendAction(const char* action, const std::string& name)
{
    stats::AppStatHelper::instance().sendEvent(action, name, "", "", false, 0);
}

} // namespace

void Widget::openExitSurvey(int appId)
{
    // Identity and event numbers stay those of the first surveyed application.
    if (++surveysOpened == 1)
        startStatistics(appId);

    const std::string language = fs::commonConfig().getValue("Language", "en");
    QuestionDlg survey(this, uninstall::displayName(appId, true), language,
                       [this](std::int32_t code, const std::string& name, const std::string&) {
                           onDialogEvent(code, name);
                       });
    survey.exec();
}

void Widget::onDialogEvent(int code, const std::string& name)
{
    for (const uninstall::DialogAction action : uninstall::dialogActions(code, name)) {
        switch (action) {
        case uninstall::DialogAction::sendShow:
            sendAction("show", name);
            break;
        case uninstall::DialogAction::sendClick:
            sendAction("click", name);
            break;
        case uninstall::DialogAction::sendClose:
            sendAction("close", name);
            break;
        case uninstall::DialogAction::showOffer:
            showStoreOffer();
            break;
        case uninstall::DialogAction::openStore:
            openStorePage();
            break;
        }
    }
}

void Widget::showStoreOffer()
{
    FvdOpenMsDlg offer(
        this, currentAppId, notOnExit,
        [this](std::int32_t code, const std::string& name) { onDialogEvent(code, name); });
    offer.exec();
}

void Widget::openStorePage()
{
    const std::string productId = uninstall::partnerFor(currentAppId, notOnExit).productId;
    KEELBASE_LOG(uninstall::mainForm, Keelbase::levelInformation)
        << "cross-sell store app -> ProductId=" << productId;
    const QUrl address(QString::fromStdString(uninstall::storeAddress(productId)));
    if (!QDesktopServices::openUrl(address)) {
        KEELBASE_LOG(dialogsLog, Keelbase::levelError)
            << "cannot open " << address.toString().toStdString();
    }
}
