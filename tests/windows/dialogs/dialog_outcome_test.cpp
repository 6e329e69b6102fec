// Survey and offer report one outcome. The report opens further dialogs, and behind those assistive
// programs and timers can still press a button.

#include "tests/windows/dialogs/recorded_events.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"
#include "ui/uninstall/src/fvd_open_ms_dlg.h"
#include "ui/uninstall/src/question_dlg.h"

#include <QPushButton>

#include <utility>

class DialogOutcomeTest : public QObject
{
    Q_OBJECT

private slots:
    void surveyReportsNothingMoreDuringAReport_data();
    void surveyReportsNothingMoreDuringAReport();
    void offerReportsNothingMoreDuringAReport_data();
    void offerReportsNothingMoreDuringAReport();

private:
    // Presses every button of the dialog and closes it.
    static void tryEverything(QDialog& dialog);
};

void DialogOutcomeTest::tryEverything(QDialog& dialog)
{
    const auto buttons = dialog.findChildren<QPushButton*>();
    QVERIFY(!buttons.isEmpty());
    for (QPushButton* button : buttons)
        button->click();
    dialog.close();
}

void DialogOutcomeTest::surveyReportsNothingMoreDuringAReport_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("answer") << QStringLiteral("btnOne") << 1
                            << QByteArray("uninstall_quiz_license");
    QTest::newRow("skip") << QString() << 6 << QByteArray("skip");
}

void DialogOutcomeTest::surveyReportsNothingMoreDuringAReport()
{
    QFETCH(QString, button);
    QFETCH(int, code);
    QFETCH(QByteArray, name);
    RecordedEvents events;
    QDialog* shown = nullptr; // from its construction to its first report after that
    QuestionDlg survey(
        nullptr, "Clip", "en",
        [&](std::int32_t eventCode, const std::string& eventName, const std::string& value) {
            events.append({eventCode, QByteArray::fromStdString(eventName),
                           QByteArray::fromStdString(value)});
            if (QDialog* open = std::exchange(shown, nullptr))
                tryEverything(*open);
        });
    shown = &survey;
    survey.show();
    QVERIFY(windows_tests::becomesVisible(survey));
    events.clear();
    if (button.isEmpty())
        survey.close();
    else
        QTest::mouseClick(survey.findChild<QPushButton*>(button), Qt::LeftButton);
    const RecordedEvents expected{{code, name, ""}};
    QCOMPARE(events, expected);
    QVERIFY(!survey.isVisible());
}

void DialogOutcomeTest::offerReportsNothingMoreDuringAReport_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("code");
    QTest::newRow("store") << QStringLiteral("mainBtn") << 4;
    QTest::newRow("close") << QString() << 6;
}

void DialogOutcomeTest::offerReportsNothingMoreDuringAReport()
{
    QFETCH(QString, button);
    QFETCH(int, code);
    RecordedEvents events;
    QDialog* shown = nullptr;
    FvdOpenMsDlg offer(nullptr, 60, false,
                       [&](std::int32_t eventCode, const std::string& eventName) {
                           events.append({eventCode, QByteArray::fromStdString(eventName), ""});
                           if (QDialog* open = std::exchange(shown, nullptr))
                               tryEverything(*open);
                       });
    shown = &offer;
    offer.show();
    QVERIFY(windows_tests::becomesVisible(offer));
    events.clear();
    if (button.isEmpty())
        offer.close();
    else
        QTest::mouseClick(offer.findChild<QPushButton*>(button), Qt::LeftButton);
    const RecordedEvents expected{{code, "offer_install_ms_store", ""}};
    QCOMPARE(events, expected);
    QVERIFY(!offer.isVisible());
}

TESSERA_QT_TEST(DialogOutcomeTest)
#include "dialog_outcome_test.moc"
