#pragma once

#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"

#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

// The base of tests of uninstall runs: registered applications whose uninstallers record their
// arguments, running applications, and answers to warning boxes.
class RunTestBase : public QObject
{
    Q_OBJECT

protected:
    static constexpr int deadlineMs = 60'000;
    static const QString suiteName;

    // Registers an application whose uninstaller records its arguments, in a folder with a space
    // and non-ASCII letters in its path. Returns the uninstaller's path.
    QString addApplication(const QString& displayName, const QString& idString,
                           const QString& program = QStringLiteral("Uninst.exe"));

    // The arguments of each start of the application's uninstaller, joined by "|".
    QStringList startsOf(const QString& idString,
                         const QString& program = QStringLiteral("Uninst.exe"));

    // The same, once there is one: on a busy machine an uninstaller may record its start only after
    // the run has stopped waiting for it.
    QStringList awaitedStartsOf(const QString& idString,
                                const QString& program = QStringLiteral("Uninst.exe"));

    // Starts a program that holds the application's instance mutex, and waits until it does.
    std::unique_ptr<QProcess> startApplication(const QString& idString);

    // Shows the window, presses "Uninstall" with the mouse and runs the event loop to its end.
    static bool press(WindowUnderTest& under);

    // Answers the warning boxes in order by these buttons, and records their texts. NoButton closes
    // the box by its title bar.
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
