#include "tests/windows/languages/localised_windows.h"

#include "tests/windows/qt_tests/window_waits.h"
#include "tests/windows/widget/suite_registry.h"
#include "ui/common/config/common_config.h"
#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/fvd_open_ms_dlg.h"
#include "ui/uninstall/src/question_dlg.h"
#include "ui/uninstall/src/store_offer.h"
#include "ui/uninstall/src/widget.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

namespace {

constexpr int clipSaverId = 60;

void fillRegistry(SuiteRegistry& registry)
{
    for (const int id : {0, 2, 9, 53, 58, 60, 61, 64}) {
        const std::string name =
            id == 53 ? uninstall::idToString(id) : uninstall::displayName(id, false);
        registry.addApplication(QString::fromStdString(name), QStringLiteral("none"));
    }
    registry.addPath(QStringLiteral("PanoramaStitcher"),
                     QStringLiteral("C:\\Program Files\\Lumacraft\\Panorama Stitcher"));
}

bool visitShown(const QString& name, QWidget& window, const WindowVisitor& visit)
{
    window.show();
    if (!windows_tests::becomesVisible(window))
        return false;
    // Changed texts get their new sizes with the next events.
    QCoreApplication::processEvents();
    visit(name, window);
    return true;
}

bool visitMainWindow(Widget& window, const WindowVisitor& visit)
{
    bool seen = visitShown(QStringLiteral("main"), window, visit);
    window.allApplicationsSelButtonClicked();
    seen = seen && visitShown(QStringLiteral("main_all"), window, visit);
    return seen;
}

bool visitOffers(Widget& window, const WindowVisitor& visit)
{
    const std::string flag = uninstall::musicOfferFlag(clipSaverId, false);
    bool seen = true;
    for (const bool music : {false, true}) {
        fs::commonConfig().setValue(flag, music ? "1" : "0");
        FvdOpenMsDlg offer(&window, clipSaverId, false, {});
        seen = seen &&
               visitShown(music ? QStringLiteral("offer_music") : QStringLiteral("offer_video"),
                          offer, visit);
    }
    fs::commonConfig().setValue(flag, "");
    return seen;
}

// The box runs its event loop inside the call, so a timer visits it.
bool visitWarning(Widget& window, const WindowVisitor& visit)
{
    bool seen = false;
    QTimer watcher;
    watcher.setInterval(10);
    QObject::connect(&watcher, &QTimer::timeout, &watcher, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        watcher.stop();
        seen = visitShown(QStringLiteral("warning"), *box, visit);
        box->button(QMessageBox::Cancel)->click();
    });
    watcher.start();
    window.showWarningAndKillApp("PanoramaStitcher", true);
    return seen;
}

} // namespace

QStringList allLanguages()
{
    QStringList languages{QStringLiteral("en")};
    const QStringList catalogues = QDir(QStringLiteral(":/language")).entryList();
    for (const QString& name : catalogues)
        languages.append(QFileInfo(name).completeBaseName().section(QLatin1Char('_'), 1));
    return languages;
}

bool visitWindows(const QString& language, const WindowVisitor& visit)
{
    SuiteRegistry registry;
    fillRegistry(registry);
    const std::string code = language.toStdString();
    fs::commonConfig().setValue("Language", code);

    Widget window({});
    if (!visitMainWindow(window, visit))
        return false;

    QuestionDlg survey(&window, uninstall::displayName(clipSaverId, true), code, {});
    if (!visitShown(QStringLiteral("survey"), survey, visit))
        return false;
    survey.hide();

    return visitOffers(window, visit) && visitWarning(window, visit);
}
