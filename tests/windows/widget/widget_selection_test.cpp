// The list's check boxes and the controls that follow them, driven by mouse and keyboard.

#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"
#include "tests/windows/widget/captured_log.h"
#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"
#include "ui/uninstall/src/app_catalogue.h"

#include <memory>

namespace {

const QString suiteName = QString::fromStdString(uninstall::displayName(uninstall::suiteId, false));

} // namespace

class WidgetSelectionTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void checkingOneRowEnablesUninstallAndDeleteSettings();
    void uncheckingTheLastCheckedRowDisablesThem();
    void checkingEveryRowByHandTurnsTheButtonToSelectNone();
    void checkingTheSuiteRowChecksEveryRow();
    void uncheckingARowWhileTheSuiteIsCheckedHasNoEffect();
    void selectAllChecksEveryRowAndDeleteSettings();
    void selectNoneUnchecksEveryRowAndKeepsDeleteSettingsChecked();
    void selectNoneAfterCheckingByHandUnchecksAll();
    void clickingARowsTextLeavesItsStateAlone();
    void spaceBarTogglesTheCurrentRowAndItsControls();
    void controlsFollowASpaceBarHeldWhileTheFocusMovesOn();
    void controlsFollowARowToggledWithoutAClick();
    void selectButtonWorksFromTheKeyboard();
    void enterPressesNoButton();
    void slotOnAnEmptyListCountsAsAllChecked();
    void changeItemsStateLeavesTheButtonsAlone();
    void setSelectButtonModeSetsTextAndState();
    void appArgumentChecksItsRowAndLeavesTheSelectButton();
    void appArgumentOfTheSuiteChecksOnlyItsRow();
    void appArgumentVariants_data();
    void appArgumentVariants();
    void closingTheWindowEndsTheEventLoop();

private:
    std::unique_ptr<SuiteRegistry> registry;
};

void WidgetSelectionTest::init()
{
    registry = std::make_unique<SuiteRegistry>();
    registry->addApplication(QStringLiteral("Clip Saver 2026"), QString());
    registry->addApplication(QStringLiteral("Screen Taker"), QString());
    registry->addApplication(suiteName, QString());
    registry->addApplication(QStringLiteral("Wave Tuner"), QString());
}

void WidgetSelectionTest::cleanup()
{
    registry.reset();
}

void WidgetSelectionTest::checkingOneRowEnablesUninstallAndDeleteSettings()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.clickCheckBox(under.rowOf(QStringLiteral("Screen Taker")));
    QCOMPARE(under.checkedRows(), 1);
    QVERIFY(under.uninstall->isEnabled());
    QVERIFY(under.deleteSettings->isEnabled());
    QVERIFY(!under.deleteSettings->isChecked());
    QCOMPARE(under.selectState(), 1);
    QCOMPARE(under.select->text(), QStringLiteral("Select all"));
}

void WidgetSelectionTest::uncheckingTheLastCheckedRowDisablesThem()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    const int row = under.rowOf(QStringLiteral("Screen Taker"));
    under.clickCheckBox(row);
    const CapturedLog log;
    under.clickCheckBox(row);
    QCoreApplication::processEvents();
    QCOMPARE(under.checkedRows(), 0);
    QVERIFY(!under.uninstall->isEnabled());
    QVERIFY(!under.deleteSettings->isEnabled());
    QCOMPARE(log.mainFormTexts(), std::vector<std::string>{"changeItemsState: 0"});
}

void WidgetSelectionTest::checkingEveryRowByHandTurnsTheButtonToSelectNone()
{
    registry->clear();
    registry->addApplication(QStringLiteral("Screen Taker"), QString());
    registry->addApplication(QStringLiteral("Wave Tuner"), QString());
    WindowUnderTest under;
    QVERIFY(under.show());
    under.clickCheckBox(0);
    QCOMPARE(under.select->text(), QStringLiteral("Select all"));
    under.clickCheckBox(1);
    QCOMPARE(under.select->text(), QStringLiteral("Select none"));
    QCOMPARE(under.selectState(), 0);
    under.clickCheckBox(0);
    QCOMPARE(under.select->text(), QStringLiteral("Select all"));
    QCOMPARE(under.selectState(), 1);
    QVERIFY(under.uninstall->isEnabled());
}

void WidgetSelectionTest::checkingTheSuiteRowChecksEveryRow()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.clickCheckBox(under.rowOf(suiteName));
    QCOMPARE(under.checkedRows(), 4);
    QCOMPARE(under.select->text(), QStringLiteral("Select none"));
    QCOMPARE(under.selectState(), 0);
    QVERIFY(under.uninstall->isEnabled());
    QVERIFY(under.deleteSettings->isEnabled());
}

void WidgetSelectionTest::uncheckingARowWhileTheSuiteIsCheckedHasNoEffect()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.clickCheckBox(under.rowOf(suiteName));
    under.clickCheckBox(under.rowOf(QStringLiteral("Screen Taker")));
    QCOMPARE(under.checkedRows(), 4);
    // Unchecking the suite first releases the others.
    under.clickCheckBox(under.rowOf(suiteName));
    under.clickCheckBox(under.rowOf(QStringLiteral("Screen Taker")));
    QCOMPARE(under.checkedRows(), 2);
}

void WidgetSelectionTest::selectAllChecksEveryRowAndDeleteSettings()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    const CapturedLog log;
    QTest::mouseClick(under.select, Qt::LeftButton);
    QCOMPARE(under.checkedRows(), 4);
    QVERIFY(under.uninstall->isEnabled());
    QVERIFY(under.deleteSettings->isEnabled());
    QVERIFY(under.deleteSettings->isChecked());
    QCOMPARE(under.select->text(), QStringLiteral("Select none"));
    QCOMPARE(under.selectState(), 0);
    const std::vector<std::string> expected{"allApplicationsSelButtonClicked",
                                            "changeItemsState: 1"};
    QCOMPARE(log.mainFormTexts(), expected);
}

void WidgetSelectionTest::selectNoneUnchecksEveryRowAndKeepsDeleteSettingsChecked()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    QTest::mouseClick(under.select, Qt::LeftButton);
    QTest::mouseClick(under.select, Qt::LeftButton);
    QCOMPARE(under.checkedRows(), 0);
    QVERIFY(!under.uninstall->isEnabled());
    QVERIFY(!under.deleteSettings->isEnabled());
    QVERIFY(under.deleteSettings->isChecked());
    QCOMPARE(under.select->text(), QStringLiteral("Select all"));
    QCOMPARE(under.selectState(), 1);
}

void WidgetSelectionTest::selectNoneAfterCheckingByHandUnchecksAll()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.clickCheckBox(under.rowOf(suiteName));
    QTest::mouseClick(under.select, Qt::LeftButton);
    QCOMPARE(under.checkedRows(), 0);
    QVERIFY(!under.uninstall->isEnabled());
}

void WidgetSelectionTest::clickingARowsTextLeavesItsStateAlone()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    const QRect row = under.list->visualItemRect(under.list->item(0));
    QTest::mouseClick(under.list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(row.left() + 60, row.center().y()));
    QCOMPARE(under.checkedRows(), 0);
    QVERIFY(!under.uninstall->isEnabled());
}

void WidgetSelectionTest::spaceBarTogglesTheCurrentRowAndItsControls()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.list->setFocus();
    under.list->setCurrentRow(0);
    QTest::keyClick(under.list, Qt::Key_Space);
    QVERIFY(under.isChecked(0));
    QTRY_VERIFY_WITH_TIMEOUT(under.uninstall->isEnabled(), windows_tests::patienceMs);
    QTest::keyClick(under.list, Qt::Key_Space);
    QVERIFY(!under.isChecked(0));
    QTRY_VERIFY_WITH_TIMEOUT(!under.uninstall->isEnabled(), windows_tests::patienceMs);
}

// The release of the key then reaches another control.
void WidgetSelectionTest::controlsFollowASpaceBarHeldWhileTheFocusMovesOn()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.list->setFocus();
    under.list->setCurrentRow(under.rowOf(suiteName));
    QTest::keyPress(under.list, Qt::Key_Space);
    QTest::keyClick(under.list, Qt::Key_Tab);
    QWidget* next = under.window.focusWidget();
    QVERIFY(next != under.list);
    QTest::keyRelease(next, Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(under.uninstall->isEnabled(), windows_tests::patienceMs);
    QVERIFY(under.deleteSettings->isEnabled());
    QCOMPARE(under.checkedRows(), 4);
    QCOMPARE(under.selectState(), 0);
}

void WidgetSelectionTest::controlsFollowARowToggledWithoutAClick()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.list->item(0)->setCheckState(Qt::Checked);
    QTRY_VERIFY_WITH_TIMEOUT(under.uninstall->isEnabled(), windows_tests::patienceMs);
    QVERIFY(under.deleteSettings->isEnabled());
    under.list->item(0)->setCheckState(Qt::Unchecked);
    QTRY_VERIFY_WITH_TIMEOUT(!under.uninstall->isEnabled(), windows_tests::patienceMs);
    QVERIFY(!under.deleteSettings->isEnabled());
}

void WidgetSelectionTest::selectButtonWorksFromTheKeyboard()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.select->setFocus();
    QTest::keyClick(under.select, Qt::Key_Space);
    QCOMPARE(under.checkedRows(), 4);
}

void WidgetSelectionTest::enterPressesNoButton()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    under.select->setFocus();
    QTest::keyClick(under.select, Qt::Key_Return);
    QTest::keyClick(under.select, Qt::Key_Enter);
    QCOMPARE(under.checkedRows(), 0);
}

void WidgetSelectionTest::slotOnAnEmptyListCountsAsAllChecked()
{
    registry->clear();
    WindowUnderTest under;
    under.window.toggleItem(nullptr);
    QCOMPARE(under.selectState(), 0);
    QCOMPARE(under.select->text(), QStringLiteral("Select none"));
    QVERIFY(!under.uninstall->isEnabled());
    QVERIFY(!under.deleteSettings->isEnabled());
}

void WidgetSelectionTest::changeItemsStateLeavesTheButtonsAlone()
{
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QCoreApplication::processEvents();
    QCOMPARE(under.checkedRows(), 4);
    QVERIFY(!under.uninstall->isEnabled());
    QCOMPARE(under.selectState(), 1);
}

void WidgetSelectionTest::setSelectButtonModeSetsTextAndState()
{
    WindowUnderTest under;
    under.window.setSelectButtonMode(false);
    QCOMPARE(under.select->text(), QStringLiteral("Select none"));
    QCOMPARE(under.selectState(), 0);
    under.window.setSelectButtonMode(true);
    QCOMPARE(under.select->text(), QStringLiteral("Select all"));
    QCOMPARE(under.selectState(), 1);
}

void WidgetSelectionTest::appArgumentChecksItsRowAndLeavesTheSelectButton()
{
    const WindowUnderTest under({"/app", "ClipSaver"});
    QCOMPARE(under.checkedRows(), 1);
    QVERIFY(under.isChecked(under.rowOf(QStringLiteral("Clip Saver 2026"))));
    QVERIFY(under.uninstall->isEnabled());
    QVERIFY(under.deleteSettings->isEnabled());
    QCOMPARE(under.select->text(), QStringLiteral("Select all"));
    QCOMPARE(under.selectState(), 1);
}

void WidgetSelectionTest::appArgumentOfTheSuiteChecksOnlyItsRow()
{
    const WindowUnderTest under({"/app", "Tessera"});
    QCoreApplication::processEvents();
    QCOMPARE(under.checkedRows(), 1);
    QVERIFY(under.isChecked(under.rowOf(suiteName)));
}

void WidgetSelectionTest::appArgumentVariants_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("checked");
    QTest::newRow("no arguments") << QStringList{} << QString();
    QTest::newRow("not in the list") << QStringList{"/app", "LoopMaker"} << QString();
    QTest::newRow("unknown id") << QStringList{"/app", "NoSuchApp"} << QString();
    QTest::newRow("display name, no id") << QStringList{"/app", "Screen Taker"} << QString();
    QTest::newRow("other letter case") << QStringList{"/app", "screentaker"} << QString();
    QTest::newRow("switch at the end") << QStringList{"/app"} << QString();
    QTest::newRow("switch in capitals") << QStringList{"/APP", "ScreenTaker"} << QString();
    QTest::newRow("hyphen") << QStringList{"-app", "ScreenTaker"} << QString();
    QTest::newRow("equals sign") << QStringList{"/app=ScreenTaker"} << QString();
    QTest::newRow("last one wins")
        << QStringList{"/app", "ScreenTaker", "/app", "WaveTuner"} << QStringLiteral("Wave Tuner");
    QTest::newRow("last one is empty") << QStringList{"/app", "ScreenTaker", "/app"} << QString();
    QTest::newRow("the value is the switch again")
        << QStringList{"/app", "/app", "WaveTuner"} << QStringLiteral("Wave Tuner");
    QTest::newRow("among other arguments")
        << QStringList{"x", "/app", "ScreenTaker", "y"} << QStringLiteral("Screen Taker");
}

void WidgetSelectionTest::appArgumentVariants()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, checked);
    std::vector<std::string> start;
    for (const QString& argument : arguments)
        start.push_back(argument.toStdString());
    const WindowUnderTest under(start);
    QCOMPARE(under.checkedRows(), checked.isEmpty() ? 0 : 1);
    QCOMPARE(under.uninstall->isEnabled(), !checked.isEmpty());
    QCOMPARE(under.deleteSettings->isEnabled(), !checked.isEmpty());
    if (!checked.isEmpty())
        QVERIFY(under.isChecked(under.rowOf(checked)));
}

void WidgetSelectionTest::closingTheWindowEndsTheEventLoop()
{
    WindowUnderTest under;
    QVERIFY(under.show());
    bool timedOut = false;
    QTimer::singleShot(0, &under.window, &QWidget::close);
    QTimer::singleShot(20000, &under.window, [&timedOut] {
        timedOut = true;
        QCoreApplication::exit(1);
    });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!timedOut);
}

TESSERA_QT_TEST(WidgetSelectionTest)
#include "widget_selection_test.moc"
