// The whole program inside this process: what holds before its application object exists, what its
// window receives, what it shows and returns. It brings its own application object, so it runs
// before the one of the tests is made.

#include "support/win32/unique_handle.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/suite_registry.h"
#include "ui/uninstall/src/program.h"
#include "ui/uninstall/src/widget.h"

#include <QApplication>
#include <QListWidget>

#include <optional>
#include <vector>

#include <windows.h>

namespace {

constexpr int chosenExitCode = 7;

struct Run
{
    bool scalesFromTheStart = false;
    bool scalesExactly = false;
    int shownWidgets = 0;
    std::optional<bool> windowIsVisible; // empty when the event loop did not run
    QStringList checkedRows;
    int exitCode = -1;
};

Run withFewerCounted;
Run handedOver;

Run* current = nullptr;

class ShownWidgets : public QObject
{
public:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Show && receiver->isWidgetType())
            ++current->shownWidgets;
        return QObject::eventFilter(receiver, event);
    }
};

void lookAndEnd()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget* widget : all) {
        if (qobject_cast<const Widget*>(widget) == nullptr)
            continue;
        current->windowIsVisible = widget->isVisible();
        const auto* list = widget->findChild<QListWidget*>();
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->checkState() == Qt::Checked)
                current->checkedRows.append(list->item(row)->text());
        }
    }
    QCoreApplication::exit(chosenExitCode);
}

// Runs in the constructor of every application object.
void watch()
{
    if (current == nullptr)
        return;
    current->scalesFromTheStart = QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling);
    current->scalesExactly = QGuiApplication::highDpiScaleFactorRoundingPolicy() ==
                             Qt::HighDpiScaleFactorRoundingPolicy::PassThrough;
    auto* shown = new ShownWidgets;
    shown->setParent(qApp);
    qApp->installEventFilter(shown);
    QMetaObject::invokeMethod(qApp, &lookAndEnd, Qt::QueuedConnection);
}

void run(Run& record, int argc, std::vector<char*> argv)
{
    current = &record;
    record.exitCode = uninstall::runProgram(argc, argv.data());
    current = nullptr;
}

void runPrograms()
{
    qAddPreRoutine(&watch);
    char program[] = "Uninstall.exe";
    {
        char app[] = "/app";
        char id[] = "ScreenTaker";
        SuiteRegistry registry;
        registry.addApplication(QStringLiteral("Screen Taker"), QString());
        registry.addApplication(QStringLiteral("Wave Tuner"), QString());
        run(withFewerCounted, 1, {program, app, id, nullptr});
    }
    // Another copy is there, and deaf.
    const win32::KernelHandle other(CreateMutexW(nullptr, FALSE, L"Global\\LUMACRAFT_UNINSTALL"));
    run(handedOver, 1, {program, nullptr});

    // As qt_tests would have it.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, false);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
}

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void scalingIsSetBeforeTheApplicationObject();
    void argumentsEndAtTheNullPointerWhateverTheirCount();
    void exitCodeIsTheEventLoops();
    void handedOverStartShowsNothingAndReturns0();
};

void ProgramTest::scalingIsSetBeforeTheApplicationObject()
{
    QVERIFY(withFewerCounted.scalesFromTheStart);
    QVERIFY(withFewerCounted.scalesExactly);
}

void ProgramTest::argumentsEndAtTheNullPointerWhateverTheirCount()
{
    QCOMPARE(withFewerCounted.checkedRows, QStringList{QStringLiteral("Screen Taker")});
}

void ProgramTest::exitCodeIsTheEventLoops()
{
    QCOMPARE(withFewerCounted.windowIsVisible, std::optional<bool>(true));
    QVERIFY(withFewerCounted.shownWidgets > 0);
    QCOMPARE(withFewerCounted.exitCode, chosenExitCode);
}

void ProgramTest::handedOverStartShowsNothingAndReturns0()
{
    QCOMPARE(handedOver.shownWidgets, 0);
    QCOMPARE(handedOver.windowIsVisible, std::optional<bool>());
    QCOMPARE(handedOver.exitCode, 0);
}

TESSERA_PREPARED_QT_TEST(ProgramTest, &runPrograms)
#include "program_test.moc"
