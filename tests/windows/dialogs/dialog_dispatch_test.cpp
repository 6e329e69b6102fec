// From the "Uninstall" button through survey and offer to the statistics service and the store, in
// a real main window with a fake HTTP library.

#include "support/netpull/netpull.h"
#include "tests/windows/dialogs/dialog_driver.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/captured_log.h"
#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"
#include "ui/common/config/common_config.h"

#include <QDesktopServices>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QUrl>
#include <QUrlQuery>

namespace {

constexpr int deadlineMs = 60'000;
const QString storeScheme = QStringLiteral("ms-windows-store");
const char* const clipSaverFlag = "clsv_uninst_ms_msldl_enabled";
const char* const trackSaverFlag = "trksv_uninst_ms_msldl_enabled";

QMutex postedLock;
QList<QByteArray> posted; // "<number> <action> <name> <info type><info> <application>"

void record(const std::string& form)
{
    QUrlQuery query(QString::fromStdString(form).replace(QLatin1Char('+'), QLatin1String("%20")));
    const QByteArray body =
        query.queryItemValue(QStringLiteral("data"), QUrl::FullyDecoded).toUtf8();
    const QJsonObject event = QJsonDocument::fromJson(body).object();
    const auto text = [&event](const char* key) {
        return event.value(QLatin1String(key)).toString().toUtf8();
    };
    const QMutexLocker locker(&postedLock);
    posted.append(text("event_number") + ' ' + text("event_type") + ' ' + text("src") + ' ' +
                  text("info_type") + text("info") + text("appid"));
}

QList<QByteArray> takePosted()
{
    const QMutexLocker locker(&postedLock);
    return std::exchange(posted, {});
}

int postedCount()
{
    const QMutexLocker locker(&postedLock);
    return posted.size();
}

// The fake services: events are recorded, and the country is the Netherlands.
netpull::Response answer(const netpull::Request& request)
{
    netpull::Response response;
    response.httpStatus = 200;
    if (request.method == netpull::Method::post)
        record(request.postData);
    else
        response.body = "NL";
    return response;
}

} // namespace

class DialogDispatchTest : public QObject
{
    Q_OBJECT

public slots:
    void openedInStore(const QUrl& address)
    {
        if (whenOpened)
            whenOpened();
        opened.append(address.toString());
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void eventsOfARun_data();
    void eventsOfARun();
    void storeProductIsLoggedBeforeItsPageIsOpened();
    void partnerIsChosenAgainAtTheStoreButton();
    void storeThatDoesNotOpenIsLoggedAsAnError();
    void everySurveyApplicationIsAskedInItsTurn();
    void surveyTakesTheLanguageOfTheSettings();
    void statisticsStayWithTheFirstSurveyedApplication();

private:
    void addApplication(const char* displayName, const char* idString);
    bool run();
    QList<QByteArray> eventsWithoutNumbers(int count);

    std::unique_ptr<SuiteRegistry> registry;
    QStringList opened;
    std::function<void()> whenOpened;
    QList<int> numbers;
    int lastNumber = 0;
};

void DialogDispatchTest::initTestCase()
{
    netpull::setFetch(&answer);
    fs::commonConfig().setValue("EventStatEnabled", "1");
    QDesktopServices::setUrlHandler(storeScheme, this, "openedInStore");
}

void DialogDispatchTest::init()
{
    registry = std::make_unique<SuiteRegistry>();
    opened.clear();
    whenOpened = nullptr;
    takePosted();
}

void DialogDispatchTest::cleanup()
{
    for (const char* flag : {clipSaverFlag, trackSaverFlag})
        fs::commonConfig().setValue(flag, "");
    registry.reset();
}

void DialogDispatchTest::addApplication(const char* displayName, const char* idString)
{
    registry->addApplication(
        QLatin1String(displayName),
        QStringLiteral("C:\\absent\\Uninst.exe /log=C:\\logs\\%1_uninstall.log")
            .arg(QLatin1String(idString)));
}

// Checks every row except "Wave Tuner", so that the run is selective, and runs the program to its
// end.
bool DialogDispatchTest::run()
{
    addApplication("Wave Tuner", "WaveTuner");
    WindowUnderTest under;
    if (!under.show())
        return false;
    for (int row = 0; row < under.list->count(); ++row) {
        if (under.list->item(row)->text() != QStringLiteral("Wave Tuner"))
            under.clickCheckBox(row);
    }
    QTimer::singleShot(0, &under.window,
                       [&under] { QTest::mouseClick(under.uninstall, Qt::LeftButton); });
    QTimer::singleShot(deadlineMs, &under.window, [] { QCoreApplication::exit(1); });
    return QApplication::exec() == 0;
}

// Waits for `count` events, checks that their numbers increase by one across all runs of this
// process, and returns them without the numbers.
QList<QByteArray> DialogDispatchTest::eventsWithoutNumbers(int count)
{
    [count] { QTRY_COMPARE_WITH_TIMEOUT(postedCount(), count, deadlineMs); }();
    QList<QByteArray> events;
    for (const QByteArray& event : takePosted()) {
        const int space = event.indexOf(' ');
        ++lastNumber;
        if (event.left(space).toInt() != lastNumber)
            events.append("wrong number");
        events.append(event.mid(space + 1));
    }
    return events;
}

void DialogDispatchTest::eventsOfARun_data()
{
    QTest::addColumn<QByteArray>("survey");
    QTest::addColumn<QByteArray>("offer");
    QTest::addColumn<bool>("musicFlag");
    QTest::addColumn<QByteArrayList>("events");
    QTest::addColumn<QString>("store");

    const QByteArray show = "show uninstall_quiz clsv";
    const QString video = QStringLiteral("ms-windows-store://pdp/?ProductId=XP9EXAMPLE0064"
                                         "&cid=lmc_uninstall");
    const QString music = QStringLiteral("ms-windows-store://pdp/?ProductId=XP9EXAMPLE0065"
                                         "&cid=lmc_uninstall");
    const struct
    {
        const char* button;
        const char* name;
    } answers[] = {{"btnOne", "uninstall_quiz_license"},
                   {"btnTwo", "uninstall_quiz_quality"},
                   {"btnThree", "uninstall_quiz_features"}};
    for (const auto& answer : answers) {
        const QByteArray click = QByteArray("click ") + answer.name + " clsv";
        QTest::newRow(answer.name)
            << QByteArray(answer.button) << QByteArray("mainBtn") << false
            << QByteArrayList{show, click, "show offer_install_ms_store clsv",
                              "click offer_install_ms_store clsv", click}
            << video;
    }
    const QByteArray click = "click uninstall_quiz_license clsv";
    QTest::newRow("offer closed") << QByteArray("btnOne") << QByteArray("close") << false
                                  << QByteArrayList{show, click, "show offer_install_ms_store clsv",
                                                    "close offer_install_ms_store clsv", click}
                                  << QString();
    QTest::newRow("offer escaped, music")
        << QByteArray("btnOne") << QByteArray("Escape") << true
        << QByteArrayList{show, click, "show offer_install_ms_store_msldl clsv",
                          "close offer_install_ms_store_msldl clsv", click}
        << QString();
    QTest::newRow("offer taken, music")
        << QByteArray("btnOne") << QByteArray("mainBtn") << true
        << QByteArrayList{show, click, "show offer_install_ms_store_msldl clsv",
                          "click offer_install_ms_store_msldl clsv", click}
        << music;
    QTest::newRow("survey skipped, offer taken")
        << QByteArray("close") << QByteArray("mainBtn") << false
        << QByteArrayList{show, "show offer_install_ms_store clsv",
                          "click offer_install_ms_store clsv", "click skip clsv"}
        << video;
    QTest::newRow("survey skipped, offer closed")
        << QByteArray("close") << QByteArray("close") << false
        << QByteArrayList{show, "show offer_install_ms_store clsv",
                          "close offer_install_ms_store clsv", "click skip clsv"}
        << QString();
    QTest::newRow("survey escaped")
        << QByteArray("Escape") << QByteArray() << false << QByteArrayList{show} << QString();
}

void DialogDispatchTest::eventsOfARun()
{
    QFETCH(QByteArray, survey);
    QFETCH(QByteArray, offer);
    QFETCH(bool, musicFlag);
    QFETCH(QByteArrayList, events);
    QFETCH(QString, store);
    const auto step = [](const QByteArray& what) {
        if (what == "close")
            return closeByTitleBar();
        if (what == "Escape")
            return pressKey(Qt::Key_Escape);
        return clickButton(what.constData());
    };
    fs::commonConfig().setValue(clipSaverFlag, musicFlag ? "1" : "");
    addApplication("Clip Saver 2026", "ClipSaver");

    DialogDriver driver;
    driver.expect("QuestionDlg", step(survey));
    if (!offer.isEmpty())
        driver.expect("FvdOpenMsDlg", step(offer));
    QVERIFY(run());
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(eventsWithoutNumbers(events.size()), events);
    QCOMPARE(opened, store.isEmpty() ? QStringList() : QStringList(store));
}

void DialogDispatchTest::storeProductIsLoggedBeforeItsPageIsOpened()
{
    addApplication("Clip Saver 2026", "ClipSaver");
    const CapturedLog log;
    std::string lastBefore;
    // cleanup() resets it.
    // cppcheck-suppress danglingLifetime
    whenOpened = [&] { lastBefore = log.mainFormTexts().back(); };
    DialogDriver driver;
    driver.expect("QuestionDlg", clickButton("btnTwo"));
    driver.expect("FvdOpenMsDlg", clickButton("mainBtn"));
    QVERIFY(run());
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(eventsWithoutNumbers(5).size(), 5);

    QStringList lines;
    for (const Keelbase::LogRecord& record : log.records()) {
        if (record.text.find("cross-sell") == std::string::npos)
            continue;
        QCOMPARE(record.level, 6);
        QCOMPARE(record.category, std::string("MainForm"));
        lines.append(QString::fromStdString(record.text));
    }
    QCOMPARE(lines,
             QStringList{QStringLiteral("cross-sell store app -> ProductId=XP9EXAMPLE0064")});
    QCOMPARE(QString::fromStdString(lastBefore), lines.first());
}

void DialogDispatchTest::partnerIsChosenAgainAtTheStoreButton()
{
    addApplication("Clip Saver 2026", "ClipSaver");
    DialogDriver driver;
    driver.expect("QuestionDlg", clickButton("btnTwo"));
    driver.expect("FvdOpenMsDlg", [](QDialog& dialog) {
        fs::commonConfig().setValue(clipSaverFlag, "1");
        clickButton("mainBtn")(dialog);
    });
    QVERIFY(run());
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(opened, QStringList{QStringLiteral("ms-windows-store://pdp/?ProductId=XP9EXAMPLE0065"
                                                "&cid=lmc_uninstall")});
    // Its name is the one it was shown with.
    QVERIFY(eventsWithoutNumbers(5).contains("click offer_install_ms_store clsv"));
}

void DialogDispatchTest::storeThatDoesNotOpenIsLoggedAsAnError()
{
    addApplication("Clip Saver 2026", "ClipSaver");
    const CapturedLog log;
    DialogDriver driver;
    driver.expect("QuestionDlg", clickButton("btnTwo"));
    driver.expect("FvdOpenMsDlg", clickButton("mainBtn"));
    // Without the handler nothing opens such addresses.
    QDesktopServices::unsetUrlHandler(storeScheme);
    const bool ended = run();
    QDesktopServices::setUrlHandler(storeScheme, this, "openedInStore");
    QVERIFY(ended);
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(eventsWithoutNumbers(5).size(), 5);

    QStringList lines;
    for (const Keelbase::LogRecord& record : log.records()) {
        if (record.level == Keelbase::levelError && record.category == "MainForm")
            lines.append(QString::fromStdString(record.text));
    }
    QCOMPARE(lines, QStringList{QStringLiteral("cannot open ms-windows-store://pdp/?ProductId="
                                               "XP9EXAMPLE0064&cid=lmc_uninstall")});
}

void DialogDispatchTest::everySurveyApplicationIsAskedInItsTurn()
{
    addApplication("Clip Saver 2026", "ClipSaver");
    addApplication("Screen Taker", "ScreenTaker");
    addApplication("Track Saver 2026", "TrackSaver");
    QStringList titles;
    const auto noteTitle = [&titles](const DialogDriver::Step& step) -> DialogDriver::Step {
        return [&titles, step](QDialog& dialog) {
            titles.append(dialog.windowTitle());
            step(dialog);
        };
    };
    fs::commonConfig().setValue(trackSaverFlag, "1");
    DialogDriver driver;
    driver.expect("QuestionDlg", noteTitle(clickButton("btnOne")));
    driver.expect("FvdOpenMsDlg", noteTitle(closeByTitleBar()));
    driver.expect("QuestionDlg", noteTitle(closeByTitleBar()));
    driver.expect("FvdOpenMsDlg", noteTitle(pressKey(Qt::Key_Escape)));
    QVERIFY(run());
    QCOMPARE(driver.problem(), QString());
    const QStringList expected{
        QStringLiteral("Uninstall Tessera Clip Saver"), QStringLiteral("Tessera Clip Saver"),
        QStringLiteral("Uninstall Tessera Track Saver"), QStringLiteral("Tessera Track Saver")};
    QCOMPARE(titles, expected);
    const QByteArrayList events{"show uninstall_quiz clsv",
                                "click uninstall_quiz_license clsv",
                                "show offer_install_ms_store clsv",
                                "close offer_install_ms_store clsv",
                                "click uninstall_quiz_license clsv",
                                "show uninstall_quiz clsv",
                                "show offer_install_ms_store_msldl clsv",
                                "close offer_install_ms_store_msldl clsv",
                                "click skip clsv"};
    QCOMPARE(eventsWithoutNumbers(9), events);
}

void DialogDispatchTest::surveyTakesTheLanguageOfTheSettings()
{
    addApplication("Clip Saver 2026", "ClipSaver");
    fs::commonConfig().setValue("Language", "pt");
    QString title;
    int width = 0;
    DialogDriver driver;
    driver.expect("QuestionDlg", [&](QDialog& dialog) {
        title = dialog.windowTitle();
        width = dialog.findChild<QPushButton*>("btnOne")->width();
        pressKey(Qt::Key_Escape)(dialog);
    });
    const bool ended = run();
    fs::commonConfig().setValue("Language", "");
    QVERIFY(ended);
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(title, QStringLiteral("Desinstalar Tessera Clip Saver"));
    QCOMPARE(width, 316);
    QCOMPARE(eventsWithoutNumbers(1).size(), 1);
}

void DialogDispatchTest::statisticsStayWithTheFirstSurveyedApplication()
{
    addApplication("Track Saver 2026", "TrackSaver");
    DialogDriver driver;
    driver.expect("QuestionDlg", pressKey(Qt::Key_Escape));
    QVERIFY(run());
    QCOMPARE(driver.problem(), QString());
    // A second start of the statistics would restart the numbers and change the application.
    const QByteArrayList events{"show uninstall_quiz clsv"};
    QCOMPARE(eventsWithoutNumbers(1), events);
}

TESSERA_QT_TEST(DialogDispatchTest)
#include "dialog_dispatch_test.moc"
