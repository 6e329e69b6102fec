// The store offer, driven by mouse and keyboard.

#include "tests/windows/dialogs/dialog_driver.h"
#include "tests/windows/dialogs/recorded_events.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"
#include "ui/common/config/common_config.h"
#include "ui/uninstall/src/fvd_open_ms_dlg.h"
#include "ui/uninstall/src/store_offer.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>

Q_DECLARE_METATYPE(QMargins)

namespace {

const char* const clipSaverFlag = "clsv_uninst_ms_msldl_enabled";
const char* const trackSaverFlag = "trksv_uninst_ms_msldl_enabled";
const char* const clipSaverExitFlag = "clsv_t149_exit_ms_msldl_enabled";

// The offer and its reports.
class Offer
{
public:
    explicit Offer(int applicationId, bool exitMode = false)
        : dialog(nullptr, applicationId, exitMode,
                 [this](std::int32_t code, const std::string& name) {
                     events.append({code, QByteArray::fromStdString(name), ""});
                     visibleAtLastReport = events.size() > 1 && dialog.isVisible();
                 })
    {}

    bool show()
    {
        dialog.show();
        return windows_tests::becomesActive(dialog);
    }

    template <typename Type = QLabel>
    Type* find(const char* name) const
    {
        return dialog.findChild<Type*>(QLatin1String(name));
    }

    QString text(const char* label) const { return find(label)->text(); }

    void key(Qt::Key key) { QTest::keyClick(dialog.windowHandle(), key); }

    RecordedEvents events;
    bool visibleAtLastReport = false;
    FvdOpenMsDlg dialog;
};

const QLayout* layoutOf(const Offer& offer, const char* widget, const char* layoutName)
{
    const QWidget* parent = offer.find<QWidget>(widget);
    const QLayout* layout = parent == nullptr ? nullptr : parent->layout();
    return layout != nullptr && layout->objectName() == QLatin1String(layoutName) ? layout
                                                                                  : nullptr;
}

QStringList widgetsIn(const QLayout* layout)
{
    QStringList names;
    for (int index = 0; index < layout->count(); ++index)
        names.append(layout->itemAt(index)->widget()->objectName());
    return names;
}

} // namespace

class FvdOpenMsDlgTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void formHasItsNamesSizesAndStyleSheets();
    void layoutsHaveTheirContentsMarginsAndSpacing_data();
    void layoutsHaveTheirContentsMarginsAndSpacing();
    void bulletRowsHaveTheirPictures();
    void fontsHaveTheirLetterSpacing();
    void titleIconAndFlags();
    void partnerFollowsTheFlag_data();
    void partnerFollowsTheFlag();
    void videoOfferHasItsTexts();
    void musicOfferHasItsTexts();
    void constructionReportsShown();
    void buttonReportsTheStoreAndNoClose();
    void storeIsReportedWhileTheOfferIsStillOpen();
    void escapeReportsAClose();
    void titleBarReportsAClose_data();
    void titleBarReportsAClose();
    void enterDoesNothing();
    void spaceOpensTheStore();
    void emptyCallbackIsSilent();
};

void FvdOpenMsDlgTest::cleanup()
{
    // Removes all keys: one with an empty value would not count as absent.
    fs::commonConfig().setFileName(L"");
}

void FvdOpenMsDlgTest::formHasItsNamesSizesAndStyleSheets()
{
    Offer offer(60);
    QCOMPARE(offer.dialog.objectName(), QStringLiteral("FvdOpenMsDlg"));
    QCOMPARE(offer.dialog.size(), QSize(558, 352));
    QCOMPARE(offer.dialog.styleSheet(),
             QStringLiteral("QDialog {\n    background-color: #ffffff;\n}\n"));
    QCOMPARE(offer.find<QWidget>("infoWgt")->styleSheet(),
             QStringLiteral("background-color:rgba(0,0,0,0);"));
    QCOMPARE(offer.find<QWidget>("infoWgtTitle")->styleSheet(), QStringLiteral("padding-top:2px;"));
    QCOMPARE(offer.find("caption")->styleSheet(),
             QStringLiteral("color:#171B23;\nfont: 500 18px \"Segoe UI\";"));
    QCOMPARE(offer.find("bottomInfo")->styleSheet(),
             QStringLiteral("padding-top:3px;\ncolor:#171B23;\nfont:  16px \"Segoe UI\";\n"));
    for (const char* label : {"info1Label", "info2Label", "info3Label", "info4Label"})
        QCOMPARE(offer.find(label)->styleSheet(), QStringLiteral("font: 14px \"Segoe UI\";"));
    QCOMPARE(offer.find<QWidget>("allTextsWidget")->minimumWidth(), 182);
    QCOMPARE(offer.find<QFrame>("line")->frameShape(), QFrame::HLine);

    const auto* button = offer.find<QPushButton>("mainBtn");
    QCOMPARE(button->maximumHeight(), 48);
    for (const char* rule : {"background-color: #0066FF;", "color: white;", "border: none;",
                             "border-radius: 6px;", "padding-left: 16px;", "padding-right: 16px;"})
        QVERIFY2(button->styleSheet().contains(QLatin1String(rule)), rule);
}

void FvdOpenMsDlgTest::layoutsHaveTheirContentsMarginsAndSpacing_data()
{
    QTest::addColumn<QByteArray>("widget");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QStringList>("contents");
    const auto row = [](const char* layout, const char* widget, int spacing, QMargins margins,
                        const char* contents) {
        QTest::newRow(layout) << QByteArray(widget) << spacing << margins
                              << QString::fromLatin1(contents).split(QLatin1Char(' '));
    };
    row("verticalLayout", "", 0, {}, "infoWgt line lowerContainer");
    row("horizontalLayout_23", "infoWgt", 0, {15, 6, 15, 2}, "right_wgt");
    row("verticalLayout_15", "right_wgt", 0, {}, "infoWgtTitle outerWidget");
    row("verticalLayout_4", "infoWgtTitle", 0, {4, 0, 0, 8}, "titleContainer");
    row("horizontalLayout_6", "outerWidget", 0, {8, 0, 4, 0}, "allTextsWidget");
    row("verticalLayout_6", "allTextsWidget", 5, {0, 0, 0, 7}, "widget bottomInfo");
    row("verticalLayout_2", "widget", 10, {}, "info1Wgt info2Wgt info3Wgt info4Wgt");
    for (const QByteArray& info :
         {QByteArray("info1"), QByteArray("info2"), QByteArray("info3"), QByteArray("info4")})
        row(info + "Layout", info + "Wgt", 5, {}, info + "Img " + info + "Label");
}

void FvdOpenMsDlgTest::layoutsHaveTheirContentsMarginsAndSpacing()
{
    QFETCH(QByteArray, widget);
    QFETCH(int, spacing);
    QFETCH(QMargins, margins);
    QFETCH(QStringList, contents);
    const Offer offer(60);
    const QLayout* layout = widget.isEmpty()
                                ? offer.dialog.layout()
                                : layoutOf(offer, widget.constData(), QTest::currentDataTag());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->objectName(), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(layout->spacing(), spacing);
    QCOMPARE(layout->contentsMargins(), margins);
    QCOMPARE(widgetsIn(layout), contents);

    const QLayout* title = layoutOf(offer, "titleContainer", "horizontalLayout_14");
    QVERIFY(title != nullptr);
    QCOMPARE(widgetsIn(title), QStringList{QStringLiteral("caption")});
    const QLayout* lower = layoutOf(offer, "lowerContainer", "horizontalLayout");
    QVERIFY(lower != nullptr);
    QCOMPARE(widgetsIn(lower), QStringList{QStringLiteral("mainBtn")});
}

void FvdOpenMsDlgTest::bulletRowsHaveTheirPictures()
{
    const Offer offer(60);
    const QString folder = QStringLiteral(":/fvd_open_ms_dlg/fvd_open_ms_dlg/");
    const QImage check(folder + QStringLiteral("blue_check.png"));
    const QImage star(folder + QStringLiteral("golden_star.png"));
    QCOMPARE(check.size(), QSize(23, 22));
    QCOMPARE(star.size(), QSize(23, 22));
    for (const char* label : {"info1Img", "info2Img", "info3Img", "info4Img"}) {
        const QLabel* picture = offer.find(label);
        QCOMPARE(picture->minimumSize(), QSize(23, 22));
        QCOMPARE(picture->maximumSize(), QSize(23, 22));
        const QImage shown = picture->pixmap(Qt::ReturnByValue).toImage();
        QVERIFY2(!shown.isNull(), label);
        QCOMPARE(shown,
                 (qstrcmp(label, "info4Img") == 0 ? star : check).convertToFormat(shown.format()));
    }
}

void FvdOpenMsDlgTest::fontsHaveTheirLetterSpacing()
{
    Offer offer(60);
    QVERIFY(offer.show());
    QCOMPARE(offer.find("caption")->font().letterSpacing(), 93.0);
    QCOMPARE(offer.find("caption")->font().pixelSize(), 18);
    for (const QWidget* widget : {static_cast<QWidget*>(offer.find("bottomInfo")),
                                  static_cast<QWidget*>(offer.find<QPushButton>("mainBtn"))}) {
        QCOMPARE(widget->font().letterSpacingType(), QFont::PercentageSpacing);
        QCOMPARE(widget->font().letterSpacing(), 96.0);
        QCOMPARE(widget->font().pixelSize(), 16);
    }
    QCOMPARE(offer.find("info1Label")->font().pixelSize(), 14);
}

void FvdOpenMsDlgTest::titleIconAndFlags()
{
    const Offer offer(61);
    // The second name of an application with a survey.
    QCOMPARE(offer.dialog.windowTitle(), QStringLiteral("Tessera Track Saver"));
    const QImage expected =
        QIcon(QStringLiteral(":/common/common/common.ico")).pixmap(32).toImage();
    QVERIFY(!expected.isNull());
    QCOMPARE(offer.dialog.windowIcon().pixmap(32).toImage(), expected);
    QVERIFY(!offer.dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(offer.dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    QCOMPARE(offer.dialog.windowType(), Qt::Dialog);
}

void FvdOpenMsDlgTest::partnerFollowsTheFlag_data()
{
    QTest::addColumn<int>("applicationId");
    QTest::addColumn<bool>("exitMode");
    QTest::addColumn<QByteArray>("flag");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("partner");
    QTest::addColumn<QByteArray>("eventName");
    const auto row = [](const char* tag, int applicationId, bool exitMode, const char* flag,
                        const char* value, int partner, const char* eventName) {
        QTest::newRow(tag) << applicationId << exitMode << QByteArray(flag) << QByteArray(value)
                           << partner << QByteArray(eventName);
    };
    const char* video = "offer_install_ms_store";
    const char* music = "offer_install_ms_store_msldl";
    row("60, no flag", 60, false, "", "", 64, video);
    row("60, flag", 60, false, clipSaverFlag, "1", 65, music);
    row("60, flag off", 60, false, clipSaverFlag, "0", 64, video);
    row("60, flag that is not 1", 60, false, clipSaverFlag, "true", 64, video);
    row("60, the other's flag", 60, false, trackSaverFlag, "1", 64, video);
    row("61, flag", 61, false, trackSaverFlag, "1", 65, music);
    row("59, others' flag", 59, false, clipSaverFlag, "1", 64, video);
    row("0, others' flag", 0, false, clipSaverFlag, "1", 64, video);
    row("exit, exit flag", 60, true, clipSaverExitFlag, "1", 65,
        "offer_install_ms_store_msldl_on_exit");
    row("exit, uninstaller's flag", 60, true, clipSaverFlag, "1", 64,
        "offer_install_ms_store_on_exit");
    row("uninstaller, exit flag", 60, false, clipSaverExitFlag, "1", 64, video);
}

void FvdOpenMsDlgTest::partnerFollowsTheFlag()
{
    QFETCH(int, applicationId);
    QFETCH(bool, exitMode);
    QFETCH(QByteArray, flag);
    QFETCH(QByteArray, value);
    QFETCH(int, partner);
    QFETCH(QByteArray, eventName);
    if (!flag.isEmpty())
        fs::commonConfig().setValue(flag.toStdString(), value.toStdString());
    QCOMPARE(uninstall::partnerFor(applicationId, exitMode).id, partner);
    const Offer offer(applicationId, exitMode);
    const RecordedEvents expected{{10, eventName, ""}};
    QCOMPARE(offer.events, expected);
    QVERIFY(offer.text("caption").contains(partner == 65 ? QStringLiteral("Music Downloader")
                                                         : QStringLiteral("Vidalo")));
}

void FvdOpenMsDlgTest::videoOfferHasItsTexts()
{
    const Offer offer(60);
    QCOMPARE(offer.text("caption"), QStringLiteral("Download 100% Free Vidalo Downloader"));
    QCOMPARE(offer.text("info1Label"), QStringLiteral("100% free, no limitations"));
    QCOMPARE(offer.text("info2Label"), QStringLiteral("No ads, no subscriptions"));
    QCOMPARE(offer.text("info3Label"), QStringLiteral("Fast, simple and reliable"));
    QCOMPARE(offer.text("info4Label"), QStringLiteral("5-star rating on the Microsoft Store"));
    QCOMPARE(offer.text("bottomInfo"),
             QString::fromUtf8("<b>Vidalo Downloader</b> \xE2\x80\x94 a 100% free app from our "
                               "trusted<br/> partners, available on the Microsoft Store."));
    QCOMPARE(offer.find<QPushButton>("mainBtn")->text(), QStringLiteral("Open Microsoft Store"));
}

void FvdOpenMsDlgTest::musicOfferHasItsTexts()
{
    fs::commonConfig().setValue(clipSaverFlag, "1");
    const Offer offer(60);
    QCOMPARE(offer.text("caption"),
             QStringLiteral("Download 100% Free YouTube MP3 Music Downloader"));
    QCOMPARE(offer.text("info1Label"), QStringLiteral("100% free, no limitations"));
    QCOMPARE(offer.text("info2Label"), QStringLiteral("No ads, no subscriptions"));
    QCOMPARE(offer.text("info3Label"), QStringLiteral("High-quality MP3 from YouTube videos"));
    QCOMPARE(offer.text("info4Label"), QStringLiteral("5-star rating on the Microsoft Store"));
    QCOMPARE(offer.text("bottomInfo"),
             QStringLiteral("<b>100 % free app</b> for saving music from YouTube in MP3, fast "
                            "and simple."));
    QCOMPARE(offer.find<QPushButton>("mainBtn")->text(), QStringLiteral("Open Microsoft Store"));
}

void FvdOpenMsDlgTest::constructionReportsShown()
{
    const Offer offer(61);
    const RecordedEvents expected{{10, "offer_install_ms_store", ""}};
    QCOMPARE(offer.events, expected);
}

void FvdOpenMsDlgTest::buttonReportsTheStoreAndNoClose()
{
    Offer offer(60);
    DialogDriver driver;
    driver.expect("FvdOpenMsDlg", clickButton("mainBtn"));
    offer.dialog.exec();
    QCOMPARE(driver.problem(), QString());
    const RecordedEvents expected{{10, "offer_install_ms_store", ""},
                                  {4, "offer_install_ms_store", ""}};
    QCOMPARE(offer.events, expected);
}

void FvdOpenMsDlgTest::storeIsReportedWhileTheOfferIsStillOpen()
{
    Offer offer(60);
    QVERIFY(offer.show());
    QTest::mouseClick(offer.find<QPushButton>("mainBtn"), Qt::LeftButton);
    QVERIFY(offer.visibleAtLastReport);
    QVERIFY(!offer.dialog.isVisible());
}

void FvdOpenMsDlgTest::escapeReportsAClose()
{
    Offer offer(60);
    DialogDriver driver;
    driver.expect("FvdOpenMsDlg", pressKey(Qt::Key_Escape));
    offer.dialog.exec();
    QCOMPARE(driver.problem(), QString());
    const RecordedEvents expected{{10, "offer_install_ms_store", ""},
                                  {6, "offer_install_ms_store", ""}};
    QCOMPARE(offer.events, expected);
}

void FvdOpenMsDlgTest::titleBarReportsAClose_data()
{
    QTest::addColumn<bool>("system");
    QTest::newRow("close()") << false;
    QTest::newRow("system command") << true;
}

void FvdOpenMsDlgTest::titleBarReportsAClose()
{
    QFETCH(bool, system);
    Offer offer(60);
    DialogDriver driver;
    driver.expect("FvdOpenMsDlg", system ? sendSystemClose() : closeByTitleBar());
    offer.dialog.exec();
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(offer.events.size(), 2);
    QCOMPARE(offer.events.last().code, 6);
}

void FvdOpenMsDlgTest::enterDoesNothing()
{
    Offer offer(60);
    QVERIFY(offer.show());
    QCOMPARE(offer.dialog.focusWidget(), offer.find<QWidget>("mainBtn"));
    for (const Qt::Key key : {Qt::Key_Enter, Qt::Key_Return, Qt::Key_A, Qt::Key_F1})
        offer.key(key);
    QVERIFY(offer.dialog.isVisible());
    QCOMPARE(offer.events.size(), 1);
}

void FvdOpenMsDlgTest::spaceOpensTheStore()
{
    Offer offer(60);
    QVERIFY(offer.show());
    offer.key(Qt::Key_Space);
    QVERIFY(!offer.dialog.isVisible());
    QCOMPARE(offer.events.size(), 2);
    QCOMPARE(offer.events.last().code, 4);
}

void FvdOpenMsDlgTest::emptyCallbackIsSilent()
{
    for (const auto& step : {clickButton("mainBtn"), pressKey(Qt::Key_Escape), closeByTitleBar()}) {
        FvdOpenMsDlg dialog(nullptr, 60, false, {});
        DialogDriver driver;
        driver.expect("FvdOpenMsDlg", step);
        dialog.exec();
        QCOMPARE(driver.problem(), QString());
        QVERIFY(!dialog.isVisible());
    }
}

TESSERA_QT_TEST(FvdOpenMsDlgTest)
#include "fvd_open_ms_dlg_test.moc"
