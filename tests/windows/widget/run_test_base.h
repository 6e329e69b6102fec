#pragma once

#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"

#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

// What tests of uninstall runs share: registered applications whose uninstallers record their
// arguments, running applications, and the answers to the warning boxes.
class RunTestBase : public QObject
{
    Q_OBJECT

protected:
    static constexpr int deadlineMs = 60'000;
    static const QString suiteName;

    // Registers an application whose uninstaller records its arguments, in a folder of its own
    // with a space and non-ASCII letters in its path. Returns the uninstaller's path.
    QString addApplication(const QString& displayName, const QString& idString,
                           const QString& program = QStringLiteral("Uninst.exe"));

    // The starts of the application's uninstaller: each its arguments, joined by "|".
    QStringList startsOf(const QString& idString,
                         const QString& program = QStringLiteral("Uninst.exe"));

    // The same, as soon as there is one: on a busy machine an uninstaller may get to its first
    // line only after the run has stopped waiting for it.
    QStringList awaitedStartsOf(const QString& idString);

    // Starts a program that holds the application's instance mutex, and waits until it does.
    std::unique_ptr<QProcess> startApplication(const QString& idString);

    // Shows the window, presses "Uninstall" with the mouse and runs the event loop to its end.
    static bool press(WindowUnderTest& under);

    // Presses the given buttons of the warning boxes that appear, one after the other, and notes
    // their texts. NoButton closes the box by its title bar.
    void answerBoxes(QList<QMessageBox::StandardButton> answers);

    static QString logSwitch(const QString& idString);

    std::unique_ptr<SuiteRegistry> registry;
    std::unique_ptr<QTemporaryDir> folder;
    QStringList boxTexts;
    QStringList boxTitles;
    std::unique_ptr<QTimer> boxWatcher;

private slots:
    void init();
    void cleanup();
};
