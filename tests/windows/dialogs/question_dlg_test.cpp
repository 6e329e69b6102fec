// The exit survey, driven by mouse and keyboard.

#include "tests/windows/dialogs/dialog_driver.h"
#include "tests/windows/dialogs/recorded_events.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"
#include "ui/uninstall/src/question_dlg.h"

#include <QLabel>
#include <QLayout>
#include <qpa/qwindowsysteminterface.h>
#include <QPushButton>
#include <QSpacerItem>

#include <private/qguiapplication_p.h>

namespace {

const RecordedEvent shown{10, "uninstall_quiz", ""};

const char* const dialogStyle =
    "QDialog {\nbackground-color:#ffffff;\n}\n\nQPushButton {\nbackground-color: white;\n"
    "color: #0066ff;\nborder: 2px solid #609fff;\nborder-radius: 8px;\npadding: 0px;\n"
    "padding-top:0px;\npadding-left:2px;\npadding-right:2px;\npadding-bottom:2px;\n"
    "font: 600 14px \"Segoe UI\";\nfont-color:  #609fff;\n}\n";

const char* const buttonNames[] = {"btnOne", "btnTwo", "btnThree"};

// The survey and its reports.
class Survey
{
public:
    explicit Survey(const std::string& language = "en", const std::string& name = "Tessera Clip")
        : dialog(nullptr, name, language, recorder())
    {}

    bool show()
    {
        dialog.show();
        return windows_tests::becomesActive(dialog);
    }

    QPushButton* button(const char* name) const
    {
        return dialog.findChild<QPushButton*>(QLatin1String(name));
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(dialog.windowHandle(), key, modifiers);
    }

    RecordedEvents events;
    bool visibleAtLastReport = false;
    QuestionDlg dialog;

private:
    QuestionDlg::EventCallback recorder()
    {
        return [this](std::int32_t code, const std::string& name, const std::string& value) {
            events.append(
                {code, QByteArray::fromStdString(name), QByteArray::fromStdString(value)});
            visibleAtLastReport = events.size() > 1 && dialog.isVisible();
        };
    }
};

} // namespace

class QuestionDlgTest : public QObject
{
    Q_OBJECT

private slots:
    void formHasItsNamesSizesAndStyleSheets();
    void layoutsHaveTheirOrderMarginsAndSpacing();
    void fontsHaveTheirLetterSpacing();
    void titleIconAndFlags();
    void textsAreTheQuestionAndItsAnswers();
    void constructionReportsShown();
    void clickedAnswerIsReportedOnce_data();
    void clickedAnswerIsReportedOnce();
    void answerIsReportedWhileTheSurveyIsStillOpen();
    void answerReleasesTheCaller();
    void closingByTheTitleBarIsASkip();
    void systemCloseCommandIsASkip();
    void deletedSurveyIsForgottenAlthoughTheMouseEnteredIt();
    void escapeReportsNothing();
    void enterDoesNothing_data();
    void enterDoesNothing();
    void otherKeysDoNothing();
    void keyboardReachesEveryAnswerInOrder();
    void spaceGivesTheFocusedAnswer();
    void portugueseHasWiderButtons_data();
    void portugueseHasWiderButtons();
    void emptyCallbackIsSilent();
};

void QuestionDlgTest::formHasItsNamesSizesAndStyleSheets()
{
    const Survey survey;
    QCOMPARE(survey.dialog.objectName(), QStringLiteral("QuestionDlg"));
    QCOMPARE(survey.dialog.size(), QSize(488, 236));
    QCOMPARE(survey.dialog.styleSheet(), QString::fromLatin1(dialogStyle));

    const auto* title = survey.dialog.findChild<QLabel*>("labelTitle");
    QVERIFY(title != nullptr);
    QCOMPARE(title->styleSheet(), QStringLiteral("font: 600 18px \"Segoe UI\";\ncolor:#2A2A2A;"));
    QCOMPARE(title->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QVERIFY(!title->wordWrap());
    QCOMPARE(title->font().family(), QStringLiteral("Segoe UI"));
    QCOMPARE(title->font().weight(), 75);
    QVERIFY(!title->font().italic());

    for (const char* name : buttonNames) {
        const QPushButton* button = survey.button(name);
        QVERIFY(button != nullptr);
        QCOMPARE(button->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        QCOMPARE(button->minimumSize(), QSize(280, 40));
        QCOMPARE(button->maximumSize(), QSize(280, 40));
    }
}

void QuestionDlgTest::layoutsHaveTheirOrderMarginsAndSpacing()
{
    const Survey survey;
    const auto spacer = [](QLayoutItem* item) { return item->spacerItem(); };

    auto* mainLayout = qobject_cast<QVBoxLayout*>(survey.dialog.layout());
    QVERIFY(mainLayout != nullptr);
    QCOMPARE(mainLayout->objectName(), QStringLiteral("mainLayout"));
    QCOMPARE(mainLayout->spacing(), 12);
    QCOMPARE(mainLayout->contentsMargins(), QMargins(16, 9, 16, 16));
    QCOMPARE(mainLayout->count(), 3);
    QVERIFY(spacer(mainLayout->itemAt(0)) != nullptr);
    QCOMPARE(spacer(mainLayout->itemAt(0))->sizeHint(), QSize(20, 4));
    QCOMPARE(spacer(mainLayout->itemAt(0))->expandingDirections(), Qt::Vertical);
    QVERIFY(spacer(mainLayout->itemAt(2)) != nullptr);
    QCOMPARE(spacer(mainLayout->itemAt(2))->sizeHint(), QSize(20, 10));
    QCOMPARE(spacer(mainLayout->itemAt(2))->expandingDirections(), Qt::Vertical);

    auto* centerLayout = qobject_cast<QVBoxLayout*>(mainLayout->itemAt(1)->layout());
    QVERIFY(centerLayout != nullptr);
    QCOMPARE(centerLayout->objectName(), QStringLiteral("centerLayout"));
    QCOMPARE(centerLayout->spacing(), 10);
    QCOMPARE(centerLayout->contentsMargins(), QMargins());
    QStringList order;
    for (int index = 0; index < centerLayout->count(); ++index) {
        QLayoutItem* item = centerLayout->itemAt(index);
        if (spacer(item) != nullptr) {
            QCOMPARE(spacer(item)->sizeHint(), QSize(20, 10));
            QCOMPARE(spacer(item)->expandingDirections(), Qt::Vertical);
            order.append(QStringLiteral("spacer"));
            continue;
        }
        QCOMPARE(item->alignment(), Qt::AlignHCenter);
        order.append(item->widget()->objectName());
    }
    const QStringList expected{QStringLiteral("labelTitle"), QStringLiteral("spacer"),
                               QStringLiteral("btnOne"), QStringLiteral("btnTwo"),
                               QStringLiteral("btnThree")};
    QCOMPARE(order, expected);
}

void QuestionDlgTest::fontsHaveTheirLetterSpacing()
{
    Survey survey;
    QVERIFY(survey.show());
    // Once shown, the style sheets are applied; they must keep the spacing.
    const QFont title = survey.dialog.findChild<QLabel*>("labelTitle")->font();
    QCOMPARE(title.letterSpacingType(), QFont::PercentageSpacing);
    QCOMPARE(title.letterSpacing(), 93.0);
    QCOMPARE(title.pixelSize(), 18);
    for (const char* name : buttonNames) {
        const QFont font = survey.button(name)->font();
        QCOMPARE(font.letterSpacingType(), QFont::PercentageSpacing);
        QCOMPARE(font.letterSpacing(), 96.0);
        QCOMPARE(font.pixelSize(), 14);
        QCOMPARE(font.family(), QStringLiteral("Segoe UI"));
    }
}

void QuestionDlgTest::titleIconAndFlags()
{
    const Survey survey("en", "Tessera Track Saver");
    QCOMPARE(survey.dialog.windowTitle(), QStringLiteral("Uninstall Tessera Track Saver"));
    const QImage expected = QIcon(QStringLiteral(":/resources/common.ico")).pixmap(32).toImage();
    QVERIFY(!expected.isNull());
    QCOMPARE(survey.dialog.windowIcon().pixmap(32).toImage(), expected);
    QVERIFY(!survey.dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(survey.dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    QCOMPARE(survey.dialog.windowType(), Qt::Dialog);
}

void QuestionDlgTest::textsAreTheQuestionAndItsAnswers()
{
    const Survey survey;
    QCOMPARE(survey.dialog.findChild<QLabel*>("labelTitle")->text(),
             QStringLiteral("Why are you uninstalling the app?"));
    QCOMPARE(survey.button("btnOne")->text(), QStringLiteral("I was looking for a free program"));
    QCOMPARE(survey.button("btnTwo")->text(), QStringLiteral("The quality is not good enough"));
    QCOMPARE(survey.button("btnThree")->text(), QStringLiteral("Missing features"));
}

void QuestionDlgTest::constructionReportsShown()
{
    const Survey survey;
    QCOMPARE(survey.events, RecordedEvents{shown});
}

void QuestionDlgTest::clickedAnswerIsReportedOnce_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("free") << QByteArray("btnOne") << 1 << QByteArray("uninstall_quiz_license");
    QTest::newRow("quality") << QByteArray("btnTwo") << 2 << QByteArray("uninstall_quiz_quality");
    QTest::newRow("features") << QByteArray("btnThree") << 3
                              << QByteArray("uninstall_quiz_features");
}

void QuestionDlgTest::clickedAnswerIsReportedOnce()
{
    QFETCH(QByteArray, button);
    QFETCH(int, code);
    QFETCH(QByteArray, name);
    Survey survey;
    QVERIFY(survey.show());
    QTest::mouseClick(survey.button(button.constData()), Qt::LeftButton);
    QVERIFY(!survey.dialog.isVisible());
    const RecordedEvents expected{shown, {code, name, ""}};
    QCOMPARE(survey.events, expected);
}

void QuestionDlgTest::answerIsReportedWhileTheSurveyIsStillOpen()
{
    Survey survey;
    QVERIFY(survey.show());
    QTest::mouseClick(survey.button("btnTwo"), Qt::LeftButton);
    QVERIFY(survey.visibleAtLastReport);
}

void QuestionDlgTest::answerReleasesTheCaller()
{
    Survey survey;
    DialogDriver driver;
    driver.expect("QuestionDlg", clickButton("btnThree"));
    survey.dialog.exec();
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(survey.events.size(), 2);
}

void QuestionDlgTest::closingByTheTitleBarIsASkip()
{
    Survey survey;
    DialogDriver driver;
    driver.expect("QuestionDlg", closeByTitleBar());
    survey.dialog.exec();
    QCOMPARE(driver.problem(), QString());
    const RecordedEvents expected{shown, {6, "skip", ""}};
    QCOMPARE(survey.events, expected);
}

void QuestionDlgTest::systemCloseCommandIsASkip()
{
    Survey survey;
    DialogDriver driver;
    driver.expect("QuestionDlg", sendSystemClose());
    survey.dialog.exec();
    QCOMPARE(driver.problem(), QString());
    const RecordedEvents expected{shown, {6, "skip", ""}};
    QCOMPARE(survey.events, expected);
}

// Closing destroys the platform's window, and the mouse may have entered it just before. Qt would
// read the deleted window when the next modal one opens.
void QuestionDlgTest::deletedSurveyIsForgottenAlthoughTheMouseEnteredIt()
{
    {
        Survey survey;
        QVERIFY(survey.show());
        QWindow* window = survey.dialog.windowHandle();
        QVERIFY(window->close());
        QWindowSystemInterface::handleEnterEvent(window);
        QCoreApplication::processEvents();
        QCOMPARE(QGuiApplicationPrivate::currentMouseWindow, window);
    }
    QCOMPARE(QGuiApplicationPrivate::currentMouseWindow, nullptr);
}

void QuestionDlgTest::escapeReportsNothing()
{
    Survey survey;
    DialogDriver driver;
    driver.expect("QuestionDlg", pressKey(Qt::Key_Escape));
    survey.dialog.exec();
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(survey.events, RecordedEvents{shown});
}

void QuestionDlgTest::enterDoesNothing_data()
{
    QTest::addColumn<QByteArray>("focused");
    QTest::newRow("first answer") << QByteArray("btnOne");
    QTest::newRow("last answer") << QByteArray("btnThree");
    QTest::newRow("dialog") << QByteArray();
}

void QuestionDlgTest::enterDoesNothing()
{
    QFETCH(QByteArray, focused);
    Survey survey;
    QVERIFY(survey.show());
    if (focused.isEmpty())
        survey.dialog.focusWidget()->clearFocus();
    else
        survey.button(focused.constData())->setFocus();
    survey.key(Qt::Key_Enter);
    survey.key(Qt::Key_Return);
    QVERIFY(survey.dialog.isVisible());
    QCOMPARE(survey.events, RecordedEvents{shown});
}

void QuestionDlgTest::otherKeysDoNothing()
{
    Survey survey;
    QVERIFY(survey.show());
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_1, Qt::Key_F1, Qt::Key_F5, Qt::Key_Delete})
        survey.key(key);
    survey.key(Qt::Key_Period, Qt::ControlModifier);
    QVERIFY(survey.dialog.isVisible());
    QCOMPARE(survey.events, RecordedEvents{shown});
}

void QuestionDlgTest::keyboardReachesEveryAnswerInOrder()
{
    Survey survey;
    QVERIFY(survey.show());
    QCOMPARE(survey.dialog.focusWidget(), survey.button("btnOne"));
    for (const char* name : {"btnTwo", "btnThree", "btnOne"}) {
        survey.key(Qt::Key_Tab);
        QCOMPARE(survey.dialog.focusWidget(), survey.button(name));
    }
    survey.key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(survey.dialog.focusWidget(), survey.button("btnThree"));
}

void QuestionDlgTest::spaceGivesTheFocusedAnswer()
{
    Survey survey;
    QVERIFY(survey.show());
    survey.key(Qt::Key_Tab);
    survey.key(Qt::Key_Space);
    QVERIFY(!survey.dialog.isVisible());
    const RecordedEvents expected{shown, {2, "uninstall_quiz_quality", ""}};
    QCOMPARE(survey.events, expected);
}

void QuestionDlgTest::portugueseHasWiderButtons_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("pt") << 316;
    for (const char* language : {"pt-BR", "br", "PT", "pt_PT", "p", "de", "en", ""})
        QTest::newRow(language) << 280;
}

void QuestionDlgTest::portugueseHasWiderButtons()
{
    QFETCH(int, width);
    Survey survey(QTest::currentDataTag());
    QVERIFY(survey.show());
    for (const char* name : buttonNames) {
        QCOMPARE(survey.button(name)->size(), QSize(width, 40));
        QCOMPARE(survey.button(name)->minimumWidth(), width);
        QCOMPARE(survey.button(name)->maximumWidth(), width);
    }
}

void QuestionDlgTest::emptyCallbackIsSilent()
{
    for (const auto& step : {clickButton("btnOne"), pressKey(Qt::Key_Escape), closeByTitleBar()}) {
        QuestionDlg dialog(nullptr, "Clip", "en", {});
        DialogDriver driver;
        driver.expect("QuestionDlg", step);
        dialog.exec();
        QCOMPARE(driver.problem(), QString());
        QVERIFY(!dialog.isVisible());
    }
}

TESSERA_QT_TEST(QuestionDlgTest)
#include "question_dlg_test.moc"
