#include "ui/uninstall/src/fvd_open_ms_dlg.h"

#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/dialog_actions.h"
#include "ui/uninstall/src/store_offer.h"
#include "ui_fvd_open_ms_dlg.h"

#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QPixmap>

#include <utility>

namespace {

constexpr qreal captionLetterSpacing = 93;
constexpr qreal textLetterSpacing = 96;

void setLetterSpacing(QWidget* widget, qreal percent)
{
    QFont font = widget->font();
    font.setLetterSpacing(QFont::PercentageSpacing, percent);
    widget->setFont(font);
}

// QPixmap loads exactly the named file, so the sharper picture is chosen here.
QPixmap bulletPicture(const char* name, const QWidget& widget)
{
    const char* suffix = widget.devicePixelRatioF() > 1 ? "@2x.png" : ".png";
    return QPixmap(QStringLiteral(":/fvd_open_ms_dlg/fvd_open_ms_dlg/") + QLatin1String(name) +
                   QLatin1String(suffix));
}

} // namespace

FvdOpenMsDlg::FvdOpenMsDlg(QWidget* parent, int applicationId, bool exitMode,
                           EventCallback eventCallback)
    : QDialog(parent), ui(std::make_unique<Ui::FvdOpenMsDlg>()),
      eventCallback(std::move(eventCallback))
{
    ui->setupUi(this);
    setWindowTitle(QString::fromStdString(uninstall::displayName(applicationId, true)));
    setWindowIcon(QIcon(QStringLiteral(":/common/common/common.ico")));
    setWindowFlags((windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::WindowCloseButtonHint);
    setUpFonts();
    setUpPictures();

    connect(ui->mainBtn, &QPushButton::clicked, this, &FvdOpenMsDlg::openStore);
    ui->mainBtn->setText(tr("Open Microsoft Store"));

    const uninstall::StorePartner& partner = uninstall::partnerFor(applicationId, exitMode);
    setTexts(partner);
    eventName = uninstall::offerEventName(partner.id, exitMode);

    report(uninstall::dialog_event::shown);
}

FvdOpenMsDlg::~FvdOpenMsDlg() = default;

void FvdOpenMsDlg::setUpFonts()
{
    setLetterSpacing(ui->caption, captionLetterSpacing);
    setLetterSpacing(ui->bottomInfo, textLetterSpacing);
    setLetterSpacing(ui->mainBtn, textLetterSpacing);
}

void FvdOpenMsDlg::setUpPictures()
{
    const QPixmap check = bulletPicture("blue_check", *this);
    for (QLabel* picture : {ui->info1Img, ui->info2Img, ui->info3Img})
        picture->setPixmap(check);
    ui->info4Img->setPixmap(bulletPicture("golden_star", *this));
}

void FvdOpenMsDlg::setTexts(const uninstall::StorePartner& partner)
{
    ui->info1Label->setText(tr("100% free, no limitations"));
    ui->info2Label->setText(tr("No ads, no subscriptions"));
    ui->info4Label->setText(tr("5-star rating on the Microsoft Store"));

    if (partner.text == uninstall::OfferText::musicDownloader) {
        //: "YouTube MP3 Music Downloader" is a description, not a name: translate it.
        ui->caption->setText(tr("Download 100% Free YouTube MP3 Music Downloader"));
        ui->info3Label->setText(tr("High-quality MP3 from YouTube videos"));
        ui->bottomInfo->setText(tr("<b>100 % free app</b> for saving music from YouTube in MP3, "
                                   "fast and simple."));
        return;
    }
    const QString name = QString::fromStdString(uninstall::displayName(partner.id, true));
    //: The name of the offered application follows.
    ui->caption->setText(tr("Download 100% Free ") + name);
    ui->info3Label->setText(tr("Fast, simple and reliable"));
    //: The name of the offered application stands before it, in bold.
    ui->bottomInfo->setText(QStringLiteral("<b>") + name + QStringLiteral("</b>") +
                            tr(" — a 100% free app from our trusted<br/> partners, available "
                               "on the Microsoft Store."));
}

void FvdOpenMsDlg::openStore()
{
    // While the store is opening, assistive programs can press the button again.
    if (std::exchange(clicked, true))
        return;
    report(uninstall::dialog_event::storeOpened);
    close();
}

void FvdOpenMsDlg::report(std::int32_t code)
{
    if (eventCallback)
        eventCallback(code, eventName);
}

void FvdOpenMsDlg::keyPressEvent(QKeyEvent* event)
{
    // Every other key is swallowed.
    if (event->key() == Qt::Key_Escape)
        close();
}

void FvdOpenMsDlg::closeEvent(QCloseEvent* event)
{
    if (!std::exchange(clicked, true))
        report(uninstall::dialog_event::closed);
    event->accept();
}
