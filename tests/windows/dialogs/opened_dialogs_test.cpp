// The dialogs as the main window opens them.

#include "support/netpull/netpull.h"
#include "tests/windows/dialogs/dialog_driver.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"

namespace {

// The country lookup; statistics stay off.
netpull::Response answer(const netpull::Request&)
{
    return {0, 200, "NL"};
}

} // namespace

class OpenedDialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { netpull::setFetch(&answer); }

    void surveyAndOfferBelongToTheMainWindow();
    void offerOutsideARunIsTheSuites();
    void altF4OnTheSurveyLeadsToTheOffer();
    void noButtonTakesEnterFromTheDialog();

private:
    const SuiteRegistry registry;
};

void OpenedDialogsTest::surveyAndOfferBelongToTheMainWindow()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    QList<QWidget*> parents;
    const auto noteParent = [&parents](const DialogDriver::Step& step) -> DialogDriver::Step {
        return [&parents, step](QDialog& dialog) {
            parents.append(dialog.parentWidget());
            step(dialog);
        };
    };
    DialogDriver driver;
    driver.expect("QuestionDlg", noteParent(clickButton("btnOne")));
    driver.expect("FvdOpenMsDlg", noteParent(pressKey(Qt::Key_Escape)));
    under.window.openExitSurvey(60);
    QCOMPARE(driver.problem(), QString());
    const QList<QWidget*> expected{&under.window, &under.window};
    QCOMPARE(parents, expected);
}

void OpenedDialogsTest::offerOutsideARunIsTheSuites()
{
    WindowUnderTest under;
    QString title;
    DialogDriver driver;
    driver.expect("QuestionDlg", clickButton("btnOne"));
    driver.expect("FvdOpenMsDlg", [&title](QDialog& dialog) {
        title = dialog.windowTitle();
        dialog.close();
    });
    under.window.openExitSurvey(61);
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(title, QStringLiteral("Tessera Kit"));
}

void OpenedDialogsTest::altF4OnTheSurveyLeadsToTheOffer()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    DialogDriver driver;
    driver.expect("QuestionDlg", pressAltF4());
    driver.expect("FvdOpenMsDlg", pressAltF4());
    under.window.openExitSurvey(60);
    QCOMPARE(driver.problem(), QString());
    QVERIFY(under.window.isVisible());
}

// A button with the focus would be pressed by Enter before the dialog sees the key.
void OpenedDialogsTest::noButtonTakesEnterFromTheDialog()
{
    WindowUnderTest under;
    int buttons = 0;
    const auto check = [&buttons](QDialog& dialog) {
        const auto all = dialog.findChildren<QPushButton*>();
        for (const QPushButton* button : all) {
            ++buttons;
            QVERIFY2(!button->autoDefault(), qPrintable(button->objectName()));
            QVERIFY2(!button->isDefault(), qPrintable(button->objectName()));
        }
        dialog.close();
    };
    DialogDriver driver;
    driver.expect("QuestionDlg", check);
    driver.expect("FvdOpenMsDlg", check);
    under.window.openExitSurvey(60);
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(buttons, 4);
}

TESSERA_QT_TEST(OpenedDialogsTest)
#include "opened_dialogs_test.moc"
